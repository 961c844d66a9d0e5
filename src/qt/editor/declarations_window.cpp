#include "qt/editor/declarations_window.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QToolBar>
#include <QVBoxLayout>
#include <array>

#include "qt/editor/code_marks_view.h"
#include "qt/editor/find_dialog.h"
#include "qt/editor/kept_place.h"
#include "qt/editor/lost_code_bar.h"
#include "qt/kit/icon_set.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"
#include "shell/command_center.h"

namespace tarnwick {

namespace {

/// `BtnMenu` by index; the first five are the rows of `popItem` too.
constexpr std::array<CodeTool, 6> kTools{{
    {"Cut", "cut", "", "Cut", 0},
    {"Copy", "copy", "", "Copy", 1},
    {"Paste", "paste", "", "Paste", 2},
    {"UnDo", "undo", "", "UnDo", 3},
    {"ReDo", "redo", "", "ReDo", 4},
    {"Search", "search", "Ctrl+F", "", -1},
}};
constexpr int kSearch = 5;
constexpr int kPopItems = 5;
/// Of its place among the settings.
constexpr std::string_view kPlaceKey = "FormViewCodes";

}  // namespace

DeclarationsWindow::DeclarationsWindow(editor::FormViewCodes& logic, CodeEdit& code,
                                       editor::CodeMarks& marks, Settings& settings,
                                       CommandCenter& commands, QWidget* parent)
    : QWidget(parent, Qt::Window),
      logic_(logic),
      code_(code),
      settings_(settings),
      lost_(new LostCodeBar(logic.Typed(), code)),
      find_(new FindDialog(code, this)),
      bar_(new QToolBar) {
  setObjectName(QStringLiteral("FormViewCodes"));
  setWindowIcon(IconOf(QStringLiteral("declarations")));
  bar_->setIconSize({18, 18});
  tools_ = std::make_unique<CodeTools>(kTools, *bar_, *this);
  tools_->RunEdit(code_, 0);
  tools_->Run(kSearch, [this] { find_->Open(); });
  const auto key = [this](const QKeySequence& keys, auto run) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, run);
  };
  key(QKeySequence(Qt::Key_F3), [this] { find_->Find(true); });
  key(QKeySequence(Qt::SHIFT | Qt::Key_F3), [this] { find_->Find(false); });
  // What is asked for here is meant with the text that stands here.
  const auto run = [this, &commands](Command command) {
    logic_.Store();
    commands.Run(command);
  };
  key(QKeySequence(Qt::CTRL | Qt::Key_S), [run] { run(Command::Save); });
  key(QKeySequence(Qt::Key_F5), [run] { run(Command::Compile); });
  key(QKeySequence(Qt::SHIFT | Qt::Key_F5), [&commands] { commands.Run(Command::Stop); });
  key(QKeySequence(Qt::CTRL | Qt::Key_Return), [this] { logic_.Accept(); });
  key(QKeySequence(Qt::CTRL | Qt::Key_Enter), [this] { logic_.Accept(); });

  auto* ok = new QPushButton(QStringLiteral("Ok"));
  ok->setObjectName(QStringLiteral("Command1"));
  ok->setToolTip(QStringLiteral("Keep the text and close (Ctrl+Enter)"));
  connect(ok, &QPushButton::clicked, this, [this] { logic_.Accept(); });
  auto* buttons = new QHBoxLayout;
  buttons->setContentsMargins(kRoom, 0, kRoom, kRoom);
  auto* mark_text = new QLabel;
  mark_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  marks_ = new CodeMarksView(code_, *mark_text, marks,
                             [this, &marks] { return marks.DeclarationsCheck(logic_.Form()); });
  key(QKeySequence(Qt::Key_F8), [this] { marks_->GoToNext(); });
  buttons->addWidget(mark_text, 1);
  buttons->addWidget(ok);
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->setSpacing(kRoom);
  whole->addWidget(bar_);
  auto* head = new QVBoxLayout;
  head->setContentsMargins(kRoom, 0, kRoom, 0);
  head->setSpacing(kRoom);
  head->addWidget(lost_);
  head->addWidget(FrameOf(code_), 1);
  whole->addLayout(head, 1);
  whole->addLayout(buttons);
  code_.setContextMenuPolicy(Qt::CustomContextMenu);
  connect(&code_, &QWidget::customContextMenuRequested, this, [this](const QPoint& place) {
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("popItem"));
    for (int row = 0; row < kPopItems; ++row) menu.addAction(&tools_->Action(row));
    menu.exec(code_.mapToGlobal(place));
  });
}

DeclarationsWindow::~DeclarationsWindow() = default;

void DeclarationsWindow::Refresh() {
  setWindowTitle(ToQString(logic_.Caption()));
  lost_->Refresh();
}

void DeclarationsWindow::ShowOpened() {
  if (!isVisible()) TakePlace(*this, settings_, kPlaceKey);
  Refresh();
  marks_->Restart();
  if (isMinimized()) showNormal();
  show();
  raise();
  activateWindow();
  code_.SetFocus();
}

bool DeclarationsWindow::event(QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Escape && key->modifiers() == Qt::NoModifier) {
      logic_.Cancel();
      return true;
    }
  }
  if (event->type() == QEvent::Hide) LeaveWindow(*this, settings_, kPlaceKey);
  return QWidget::event(event);
}

void DeclarationsWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  logic_.Cancel();
}

}  // namespace tarnwick
