#include "qt/frame/restore_dialog.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <optional>

#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"
#include "shell/project_commands.h"

namespace tarnwick {

namespace {

using Offer = project::Recovery::Offer;

constexpr QSize kStartSize(640, 320);
constexpr int kMostPath = 320;

void Fill(QTreeWidget& list, const std::vector<Offer>& offers) {
  list.clear();
  for (const Offer& offer : offers) {
    QStringList forms;
    for (const project::KeptForm& form : offer.Project.Forms) forms.append(ToQString(form.Name));
    const QString project = ToQString(offer.Project.ProjectFile);
    auto* row = new QTreeWidgetItem(
        &list, {ToQString(offer.Project.When), project, forms.join(QStringLiteral(", "))});
    row->setToolTip(1, project);
    row->setToolTip(2, row->text(2));
  }
  if (!offers.empty()) list.setCurrentItem(list.topLevelItem(0));
}

}  // namespace

void RunRestoreDialog(ProjectCommands& projects, QWidget* parent) {
  std::vector<Offer> offers = projects.UnsavedWork();
  QDialog dialog(parent);
  dialog.setObjectName(QStringLiteral("RestoreWork"));
  dialog.setWindowTitle(QStringLiteral("Restore Unsaved Work"));
  auto* label = new QLabel(QStringLiteral("&Work that was not saved"), &dialog);
  auto* list = new QTreeWidget(&dialog);
  list->setObjectName(QStringLiteral("UnsavedWork"));
  list->setAccessibleName(QStringLiteral("Work that was not saved"));
  list->setHeaderLabels(
      {QStringLiteral("Date"), QStringLiteral("Project"), QStringLiteral("Forms")});
  list->setRootIsDecorated(false);
  list->setUniformRowHeights(true);
  list->setTextElideMode(Qt::ElideMiddle);
  label->setBuddy(list);
  auto* buttons = new QDialogButtonBox(&dialog);
  const auto button = [&](const QString& caption, QDialogButtonBox::ButtonRole role,
                          const QString& tip) {
    QPushButton* made = buttons->addButton(caption, role);
    made->setToolTip(tip);
    return made;
  };
  QPushButton* restore = button(QStringLiteral("&Restore"), QDialogButtonBox::AcceptRole,
                                QStringLiteral("Open it as a project, not saved yet"));
  restore->setObjectName(QStringLiteral("Restore"));
  QPushButton* forget = button(QStringLiteral("&Delete"), QDialogButtonBox::ActionRole,
                               QStringLiteral("Delete this work for good"));
  forget->setObjectName(QStringLiteral("DeleteWork"));
  QPushButton* later = button(QStringLiteral("&Not Now"), QDialogButtonBox::RejectRole,
                              QStringLiteral("Keep it on offer"));
  later->setObjectName(QStringLiteral("NotNow"));
  auto* column = new QVBoxLayout(&dialog);
  column->setContentsMargins(2 * kRoom, 2 * kRoom, 2 * kRoom, 2 * kRoom);
  column->setSpacing(kRoom);
  column->addWidget(label);
  column->addWidget(list);
  column->addWidget(buttons);
  dialog.resize(kStartSize);

  const auto show = [&] {
    Fill(*list, offers);
    for (const int each : {0, 1}) list->resizeColumnToContents(each);
    // The forms keep some room beside a long path.
    list->setColumnWidth(1, qMin(list->columnWidth(1), kMostPath));
    const bool any = !offers.empty();
    label->setText(any ? QStringLiteral("&Work that was not saved")
                       : QStringLiteral("There is no unsaved work."));
    restore->setEnabled(any);
    forget->setEnabled(any);
    (any ? restore : later)->setDefault(true);
  };
  const auto chosen = [&]() -> std::optional<std::size_t> {
    const int row = list->indexOfTopLevelItem(list->currentItem());
    return row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row));
  };
  QObject::connect(forget, &QPushButton::clicked, &dialog, [&] {
    if (const auto row = chosen()) projects.Forget(offers[*row]);
    offers = projects.UnsavedWork();
    show();
  });
  QObject::connect(list, &QTreeWidget::itemActivated, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  show();
  list->setFocus();
  if (dialog.exec() != QDialog::Accepted) return;
  if (const auto row = chosen()) projects.Restore(offers[*row]);
}

}  // namespace tarnwick
