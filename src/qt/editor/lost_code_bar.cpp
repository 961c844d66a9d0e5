#include "qt/editor/lost_code_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "editor/typed_text.h"
#include "qt/editor/code_edit.h"
#include "qt/kit/theme.h"

namespace tarnwick {

LostCodeBar::LostCodeBar(editor::TypedText& typed, CodeEdit& code) : typed_(typed) {
  setObjectName(QStringLiteral("LostCode"));
  setProperty("panel", true);
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(kRoom, kGap, kGap, kGap);
  line->addWidget(new QLabel(QStringLiteral("Unsaved code was found.")), 1);
  const auto add = [&](const char* caption, const char* name, const char* tip, auto command) {
    auto* button = new QPushButton(QString::fromLatin1(caption));
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(QString::fromLatin1(tip));
    connect(button, &QPushButton::clicked, this, [this, &code, command] {
      command();
      Refresh();
      code.SetFocus();
    });
    line->addWidget(button);
  };
  add("&Restore", "RestoreCode", "Puts the lost text into the editor",
      [this] { typed_.RestoreLost(); });
  add("&Discard", "DiscardCode", "Forgets the lost text", [this] { typed_.DiscardLost(); });
}

void LostCodeBar::Refresh() {
  setVisible(typed_.Lost() != nullptr);
}

}  // namespace tarnwick
