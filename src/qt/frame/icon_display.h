// The icon display: the icon of the program that is being made.
#pragma once

#include <QWidget>

#include "looks/picture_cache.h"

class QLabel;

namespace tarnwick {

struct ProjectTables;

/// Shows the picture and the path of the program's icon, or "(Default)".
class IconDisplay final : public QWidget {
  Q_OBJECT

 public:
  IconDisplay(const ProjectTables& tables, looks::PictureCache& pictures, QWidget* parent);

  /// Reads the icon of the project again.
  void Refresh();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Elide();

  const ProjectTables& tables_;
  looks::PictureCache& pictures_;
  QLabel* picture_;
  QLabel* text_;
  QString full_;
};

}  // namespace tarnwick
