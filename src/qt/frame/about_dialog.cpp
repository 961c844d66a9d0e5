#include "qt/frame/about_dialog.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "qt/frame/name_labels.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"

namespace tarnwick {

void RunAboutDialog(std::string_view program_folder, QWidget* parent) {
  QDialog dialog(parent);
  dialog.setObjectName(QStringLiteral("FormAbout"));
  dialog.setWindowTitle(QStringLiteral("About Tarnwick"));
  auto* version = new QLabel(QStringLiteral("Version " TARNWICK_VERSION), &dialog);
  auto* purpose =
      new QLabel(QStringLiteral("Visual development environment for RapidQ BASIC"), &dialog);
  auto* folder = new QLabel(ToQString(program_folder), &dialog);
  folder->setProperty("quiet", true);
  // To be copied, by keys as well.
  folder->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  folder->setFocusPolicy(Qt::StrongFocus);
  auto* texts = new QVBoxLayout;
  texts->setSpacing(kGap);
  texts->addWidget(MakeNameLabel(1.6, &dialog));
  texts->addWidget(version);
  texts->addWidget(purpose);
  texts->addSpacing(kRoom);
  texts->addWidget(new QLabel(QStringLiteral("Program folder"), &dialog));
  texts->addWidget(folder);
  auto* row = new QHBoxLayout;
  row->setSpacing(2 * kRoom);
  row->addWidget(MakePictureLabel(&dialog), 0, Qt::AlignTop);
  row->addLayout(texts, 1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, &dialog);
  buttons->button(QDialogButtonBox::Ok)->setToolTip(QStringLiteral("Close (Enter)"));
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  auto* column = new QVBoxLayout(&dialog);
  column->setContentsMargins(2 * kRoom, 2 * kRoom, 2 * kRoom, 2 * kRoom);
  column->setSpacing(2 * kRoom);
  column->addLayout(row);
  column->addWidget(buttons);
  dialog.exec();
}

}  // namespace tarnwick
