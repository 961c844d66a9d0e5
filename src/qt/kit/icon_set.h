// The program's own pictures.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QString>
#include <string_view>

#include "model/kinds.h"
#include "shell/command_table.h"

namespace tarnwick {

/// The three colours of which every picture is made.
struct IconColors {
  QColor Ink;
  QColor Accent;
  QColor Paper;
};

/// A picture of the set by its name ("save"), drawn sharp at any size and in the palette of the
/// moment; disabled ones are pale. An empty icon for a name that is not there.
[[nodiscard]] QIcon IconOf(const QString& name);
/// The picture in colours of its own, `size` logical pixels wide, kept for further calls.
[[nodiscard]] QPixmap PixmapOf(const QString& name, int size, qreal ratio,
                               const IconColors& colors);

[[nodiscard]] QString IconNameOf(Command command);
/// Picture of a tool of the tool box.
[[nodiscard]] QString IconNameOfTool(int number);
[[nodiscard]] QString IconNameOf(Kind kind);
/// The program's own icon.
[[nodiscard]] QIcon ProgramIcon();

}  // namespace tarnwick
