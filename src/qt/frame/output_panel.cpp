#include "qt/frame/output_panel.h"

#include <QAbstractListModel>
#include <QListView>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include "qt/frame/command_actions.h"
#include "qt/kit/icon_set.h"
#include "qt/kit/panel_frame.h"
#include "qt/kit/text_bridge.h"
#include "shell/run_command.h"

namespace tarnwick {

namespace {

constexpr int kHeight = 150;
constexpr int kButtonIcon = 14;
constexpr int kRefreshWait = 50;  // milliseconds

}  // namespace

/// The lines as rows of a list.
class RunLinesModel final : public QAbstractListModel {
 public:
  RunLinesModel(const RunLines& lines, QObject* parent)
      : QAbstractListModel(parent), lines_(lines) {}

  [[nodiscard]] int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : count_;
  }
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= lines_.All().size()) return {};
    const RunLines::Line& line = lines_.All()[row];
    if (role == Qt::DisplayRole) return ToQString(line.Text);
    if (role == Qt::FontRole && line.What == RunLines::Sort::Error) {
      QFont font;
      font.setBold(true);
      return font;
    }
    return {};
  }
  void Refresh() {
    beginResetModel();
    count_ = static_cast<int>(lines_.All().size());
    endResetModel();
  }

 private:
  const RunLines& lines_;
  int count_ = 0;  ///< as the list knows it
};

OutputPanel::OutputPanel(RunCommand& run, CommandActions& commands, QWidget* parent)
    : QWidget(parent),
      run_(run),
      frame_(new PanelFrame(QStringLiteral("OutputFrame"), QStringLiteral("Output"), this)),
      model_(new RunLinesModel(run.Lines(), this)),
      list_(new QListView(this)) {
  setObjectName(QStringLiteral("OutputPanel"));
  frame_->AddToHead(
      commands.MakeButton({"Stop", Command::Stop}, QStringLiteral("OutputStop"), 0, frame_));
  connect(
      AddButton(QStringLiteral("ClearOutput"), QStringLiteral("Clear"), QStringLiteral("delete")),
      &QToolButton::clicked, this, [this] { run_.ClearLines(); });
  connect(
      AddButton(QStringLiteral("CloseOutput"), QStringLiteral("Close"), QStringLiteral("close")),
      &QToolButton::clicked, this, &OutputPanel::HideWanted);
  list_->setObjectName(QStringLiteral("OutputLines"));
  list_->setAccessibleName(QStringLiteral("Output"));
  list_->setUniformItemSizes(true);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_->setModel(model_);
  frame_->Body().addWidget(list_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(frame_);
  setFixedHeight(kHeight);
  hide();
  connect(list_, &QListView::activated, this,
          [this](const QModelIndex& index) { run_.Jump(static_cast<std::size_t>(index.row())); });
  run_.SetView(this);
}

QToolButton* OutputPanel::AddButton(const QString& name, const QString& text, const QString& icon) {
  auto* button = new QToolButton(frame_);
  button->setObjectName(name);
  button->setIcon(IconOf(icon));
  button->setIconSize(QSize(kButtonIcon, kButtonIcon));
  button->setToolTip(text);
  button->setAccessibleName(text + QStringLiteral(" output"));
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::NoFocus);
  frame_->AddToHead(button);
  return button;
}

OutputPanel::~OutputPanel() {
  run_.SetView(nullptr);
}

void OutputPanel::RunLinesChanged() {
  if (refresh_waits_) return;
  refresh_waits_ = true;
  QTimer::singleShot(kRefreshWait, this, [this] { Refresh(); });
}

void OutputPanel::Refresh() {
  refresh_waits_ = false;
  // Who has scrolled up to read stays there.
  QScrollBar* const bar = list_->verticalScrollBar();
  const int at = bar->value();
  const bool follows = at == bar->maximum();
  model_->Refresh();
  if (follows) {
    list_->scrollToBottom();
  } else {
    bar->setValue(at);
  }
}

}  // namespace tarnwick
