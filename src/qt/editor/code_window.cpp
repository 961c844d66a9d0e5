#include "qt/editor/code_window.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "qt/editor/code_marks_view.h"
#include "qt/editor/find_dialog.h"
#include "qt/editor/function_panel_view.h"
#include "qt/editor/kept_place.h"
#include "qt/editor/lost_code_bar.h"
#include "qt/kit/grip_splitter.h"
#include "qt/kit/icon_set.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"
#include "shell/command_center.h"
#include "shell/status_text.h"

namespace tarnwick {

namespace {

/// `BtnMenu` by index, each with its row of the context menu `mnu`.
constexpr std::array<CodeTool, 11> kTools{{
    {"Open Code", "open", "Ctrl+O", "", -1},
    {"Save Code", "save", "Ctrl+Shift+S", "", -1},
    {"Cut", "cut", "", "Cut", 4},
    {"Copy", "copy", "", "Copy", 3},
    {"Paste", "paste", "", "Paste", 5},
    {"UnDo", "undo", "", "UnDo", 0},
    {"ReDo", "redo", "", "ReDo", 1},
    {"Search", "search", "Ctrl+F", "Search", 7},
    {"Public Declarations", "declarations", "Ctrl+D", "Public Declarations", 9},
    {"Functions", "functions", "", "Functions and Examples", 10},
    {"Objects Examiner", "examiner", "Ctrl+F1", "Objets Properties", 11},
}};
enum Tool {
  kOpenCode,
  kSaveCode,
  kCut,
  kCopy,
  kPaste,
  kUndo,
  kRedo,
  kSearch,
  kDeclare,
  kFunctions,
  kExaminer
};
constexpr int kMenuRows = 14;
constexpr int kHelpRow = 13;

/// Of its place among the settings.
constexpr std::string_view kPlaceKey = "FormCodigo";

}  // namespace

CodeWindow::CodeWindow(editor::FormCodigo& logic, CodeEdit& code, const CodeWindowPorts& ports,
                       QWidget* parent)
    : QWidget(parent, Qt::Window),
      logic_(logic),
      code_(code),
      ports_(ports),
      events_(new QComboBox),
      lost_(new LostCodeBar(logic.Typed(), code)),
      parts_(new GripSplitter(Qt::Horizontal, nullptr)),
      functions_(new FunctionPanelView(logic.Functions(), nullptr)),
      find_(new FindDialog(code, this)),
      mark_text_(new QLabel),
      marks_(new CodeMarksView(code, *mark_text_, ports.Marks,
                               [this] { return ports_.Marks.EventCheck(logic_.Typed().Key()); })),
      bar_(new QToolBar) {
  setObjectName(QStringLiteral("FormCodigo"));
  setWindowIcon(IconOf(QStringLiteral("code")));
  BuildTools();
  BuildLayout();
  connect(events_, &QComboBox::activated, this, [this](int row) {
    logic_.Events_Click(row);
    Refresh();
    marks_->Restart();
    // Keys walk through the events; a choice by the mouse goes on to the text.
    if (!events_by_key_) code_.SetFocus();
  });
  events_->installEventFilter(this);
  connect(functions_, &FunctionPanelView::CloseWanted, this, [this] {
    ShowFunctions(false);
    code_.SetFocus();
  });
  connect(functions_, &FunctionPanelView::SearchRowChosen, this,
          [this](int row) { logic_.SetComboSearch(row); });
  connect(&code_, &CodeEdit::HelpWanted, this, [this](const QString& word) { ShowHelpOf(word); });
  code_.setContextMenuPolicy(Qt::CustomContextMenu);
  connect(&code_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& place) { ShowMenu(code_.mapToGlobal(place)); });
}

CodeWindow::~CodeWindow() = default;

void CodeWindow::BuildTools() {
  bar_->setObjectName(QStringLiteral("Barra"));
  bar_->setIconSize({18, 18});
  tools_ = std::make_unique<CodeTools>(kTools, *bar_, *this);
  tools_->Run(kOpenCode, [this] { OpenFile(); });
  tools_->Run(kSaveCode, [this] { SaveFile(); });
  tools_->RunEdit(code_, kCut);
  tools_->Run(kSearch, [this] { find_->Open(); });
  tools_->Run(kDeclare, [this] { ports_.Commands.Run(Command::PublicDeclarations); });
  const auto functions = [this] {
    ShowFunctions(true);
    functions_->FocusSearch();
  };
  tools_->Run(kFunctions, functions);
  tools_->Run(kExaminer, [this] { ports_.Commands.Run(Command::Examiner); });
  const auto key = [this](const QKeySequence& keys, auto run) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, run);
  };
  // The button is off while the panel is open; its key leads there all the same.
  key(QKeySequence(Qt::Key_F2), functions);
  tools_->Action(kFunctions).setToolTip(QStringLiteral("Functions (F2)"));
  key(QKeySequence(Qt::Key_F3), [this] { find_->Find(true); });
  key(QKeySequence(Qt::SHIFT | Qt::Key_F3), [this] { find_->Find(false); });
  key(QKeySequence(Qt::CTRL | Qt::Key_S), [this] { ports_.Commands.Run(Command::Save); });
  key(QKeySequence(Qt::Key_F8), [this] { marks_->GoToNext(); });
  key(QKeySequence(Qt::Key_F5), [this] { ports_.Commands.Run(Command::Compile); });
  key(QKeySequence(Qt::SHIFT | Qt::Key_F5), [this] { ports_.Commands.Run(Command::Stop); });
  key(QKeySequence(Qt::CTRL | Qt::Key_Return), [this] { logic_.Accept(); });
  key(QKeySequence(Qt::CTRL | Qt::Key_Enter), [this] { logic_.Accept(); });
}

void CodeWindow::BuildLayout() {
  events_->setObjectName(QStringLiteral("Events"));
  events_->setAccessibleName(QStringLiteral("Events"));
  events_->setToolTip(QStringLiteral("Events of this object"));
  events_->setMaxVisibleItems(20);

  parts_->setObjectName(QStringLiteral("WndEdit"));
  parts_->setChildrenCollapsible(false);
  parts_->addWidget(FrameOf(code_));
  parts_->addWidget(functions_);
  parts_->setStretchFactor(0, 1);
  // The panel is as wide as its tabs; the text has the rest.
  parts_->setSizes({1000, 1});

  auto* ok = new QPushButton(QStringLiteral("Ok"));
  auto* cancel = new QPushButton(QStringLiteral("Cancel"));
  ok->setObjectName(QStringLiteral("BtnFrm_0"));
  cancel->setObjectName(QStringLiteral("BtnFrm_1"));
  ok->setToolTip(QStringLiteral("Keep the code and close (Ctrl+Enter)"));
  cancel->setToolTip(QStringLiteral("Close without keeping the code (Esc)"));
  connect(ok, &QPushButton::clicked, this, [this] { logic_.Accept(); });
  connect(cancel, &QPushButton::clicked, this, [this] { logic_.Cancel(); });
  auto* buttons = new QHBoxLayout;
  buttons->setContentsMargins(kRoom, 0, kRoom, kRoom);
  mark_text_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  buttons->addWidget(mark_text_, 1);
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* head = new QVBoxLayout;
  head->setContentsMargins(kRoom, 0, kRoom, 0);
  head->setSpacing(kGap);
  head->addWidget(events_);
  head->addWidget(lost_);

  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->setSpacing(kRoom);
  whole->addWidget(bar_);
  whole->addLayout(head);
  auto* middle = new QHBoxLayout;
  middle->setContentsMargins(kRoom, 0, kRoom, 0);
  middle->addWidget(parts_);
  whole->addLayout(middle, 1);
  whole->addLayout(buttons);
  setTabOrder(&code_, events_);
}

void CodeWindow::Refresh() {
  setWindowTitle(ToQString(logic_.Caption()));
  const QSignalBlocker quiet(events_);
  events_->clear();
  for (const editor::EventRow& row : logic_.Events()) events_->addItem(ToQString(row.Text));
  events_->setCurrentIndex(logic_.EventRowNo());
  events_->setEnabled(logic_.EventsEnabled());
  lost_->Refresh();
}

void CodeWindow::CheckAgain() {
  if (isVisible()) marks_->CheckAgain();
}

void CodeWindow::ShowOpened() {
  if (!isVisible()) TakePlace(*this, ports_.SettingsFile, kPlaceKey);
  Refresh();
  functions_->Refresh(logic_.ComboSearch());
  ShowFunctions(logic_.WndFuncVisible());
  marks_->Restart();
  BringToFront();
  code_.SetFocus();
}

void CodeWindow::BringToFront() {
  if (isMinimized()) showNormal();
  show();
  raise();
  activateWindow();
}

void CodeWindow::ShowFunctions(bool shown) {
  logic_.ShowWndFunc(shown);
  functions_->setVisible(shown);
  tools_->Action(kFunctions).setEnabled(!shown);
}

void CodeWindow::ShowHelpOf(const QString& word) {
  std::string name = FromQString(word);
  while (name.ends_with('.')) name.pop_back();
  // The word at the caret comes without its type suffix.
  if (!logic_.Functions().ShowHelpOf(name) && !logic_.Functions().ShowHelpOf(name + "$")) return;
  ShowFunctions(true);
  functions_->ShowHelp();
}

void CodeWindow::ShowMenu(const QPoint& place) {
  QMenu menu(this);
  menu.setObjectName(QStringLiteral("mnu"));
  for (int row = 0; row < kMenuRows; ++row) {
    if (row == kHelpRow) {
      // The row is there and has no command.
      menu.addAction(QStringLiteral("Help"));
      continue;
    }
    const auto tool = std::find_if(kTools.begin(), kTools.end(),
                                   [row](const CodeTool& of) { return of.MenuRow == row; });
    if (tool == kTools.end()) {
      menu.addSeparator();
    } else {
      menu.addAction(&tools_->Action(static_cast<int>(tool - kTools.begin())));
    }
  }
  menu.exec(place);
}

void CodeWindow::OpenFile() {
  const auto path = ports_.Dialogs.OpenFile({"OPEN FILE - Tarnwick -", "All Files|*.*", "", ""});
  code_.SetFocus();
  if (!path || path->empty()) return;
  const auto text = ports_.Files.Read(*path);
  if (!text) {
    marks_->Tell(ToQString(NotOpenedStatus(*path, "it cannot be read")));
    return;
  }
  const int last = code_.LineCount() - 1;
  code_.beginUndoAction();
  code_.SetSel({0, 0, last, static_cast<int>(code_.GetLine(last).size())});
  code_.SetSelText(*text);
  // Files of other systems end their lines otherwise.
  code_.convertEols(QsciScintilla::EolWindows);
  code_.endUndoAction();
  code_.SetCaretPos(0, 0);
}

void CodeWindow::SaveFile() {
  const auto path = ports_.Dialogs.SaveFile({"SAVE FILE - Tarnwick -", "All Files|*.*", "", ""});
  code_.SetFocus();
  if (!path || path->empty()) return;
  const bool saved = ports_.Files.Replace(*path, code_.Text());
  marks_->Tell(saved ? QStringLiteral("Saved: %1").arg(ToQString(*path))
                     : ToQString(NotSavedStatus({*path, ports_.Files.WhyNotReplaced()})));
}

bool CodeWindow::eventFilter(QObject* object, QEvent* event) {
  if (object != events_) return QWidget::eventFilter(object, event);
  if (event->type() == QEvent::MouseButtonPress) events_by_key_ = false;
  if (event->type() == QEvent::KeyPress) {
    events_by_key_ = true;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      code_.SetFocus();
      return true;
    }
  }
  return QWidget::eventFilter(object, event);
}

bool CodeWindow::event(QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Escape && key->modifiers() == Qt::NoModifier) {
      logic_.Cancel();
      return true;
    }
  }
  if (event->type() == QEvent::Hide) LeaveWindow(*this, ports_.SettingsFile, kPlaceKey);
  return QWidget::event(event);
}

void CodeWindow::closeEvent(QCloseEvent* event) {
  // Every other way out is a Cancel; the window itself stays for the next opening.
  event->ignore();
  logic_.Cancel();
}

}  // namespace tarnwick
