#include "run/message_windows.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarnwick::run {
namespace {

QLabel* PlainLabel(const QString& text, const char* name) {
  auto* const label = new QLabel(text);
  label->setObjectName(QString::fromLatin1(name));
  label->setTextFormat(Qt::PlainText);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  label->setWordWrap(true);
  return label;
}

QListWidget* Lines(const QStringList& lines, const char* name) {
  auto* const list = new QListWidget;
  list->setObjectName(QString::fromLatin1(name));
  list->addItems(lines);
  list->setSelectionMode(QListWidget::ExtendedSelection);
  return list;
}

constexpr int kWidth = 460;

}  // namespace

bool ShowFault(const FaultText& fault, bool can_show) {
  QDialog box;
  box.setObjectName(QStringLiteral("RunTimeError"));
  box.setWindowTitle(fault.Title);
  box.setMinimumWidth(kWidth);
  auto* const rows = new QVBoxLayout(&box);
  QLabel* const what = PlainLabel(fault.What, "What");
  QFont bold = what->font();
  bold.setBold(true);
  what->setFont(bold);
  rows->addWidget(what);
  if (!fault.Place.isEmpty()) rows->addWidget(PlainLabel(fault.Place, "Place"));
  if (!fault.Line.isEmpty()) {
    QLabel* const line = PlainLabel(fault.Line, "Line");
    line->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    line->setMargin(4);
    line->setBackgroundRole(QPalette::Base);
    line->setAutoFillBackground(true);
    rows->addWidget(line);
  }
  if (!fault.Chain.isEmpty()) {
    constexpr int kChainHeight = 90;
    QListWidget* const chain = Lines(fault.Chain, "Chain");
    chain->setMaximumHeight(kChainHeight);
    rows->addWidget(chain);
  }
  auto* const buttons = new QDialogButtonBox;
  QPushButton* const close =
      buttons->addButton(QStringLiteral("&Close"), QDialogButtonBox::RejectRole);
  close->setObjectName(QStringLiteral("Close"));
  close->setDefault(true);
  if (can_show) {
    QPushButton* const show =
        buttons->addButton(QStringLiteral("&Show in Tarnwick"), QDialogButtonBox::AcceptRole);
    show->setObjectName(QStringLiteral("Show"));
  }
  QObject::connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &box, &QDialog::reject);
  rows->addWidget(buttons);
  return box.exec() == QDialog::Accepted;
}

void ShowErrors(const QString& title, const QStringList& errors) {
  constexpr int kHeight = 220;
  QDialog box;
  box.setObjectName(QStringLiteral("SourceErrors"));
  box.setWindowTitle(title);
  box.setMinimumSize(kWidth, kHeight);
  auto* const rows = new QVBoxLayout(&box);
  rows->addWidget(PlainLabel(QStringLiteral("The program cannot be started:"), "What"));
  rows->addWidget(Lines(errors, "Errors"));
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &box, &QDialog::reject);
  rows->addWidget(buttons);
  box.exec();
}

void CloseMessagesSoon() {
  QMetaObject::invokeMethod(
      QCoreApplication::instance(), [] { CloseMessages(); }, Qt::QueuedConnection);
}

void CloseMessages() {
  while (QWidget* const menu = QApplication::activePopupWidget()) {
    if (!menu->close()) break;
  }
  while (auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
    box->reject();
    if (box->isVisible()) break;
  }
}

}  // namespace tarnwick::run
