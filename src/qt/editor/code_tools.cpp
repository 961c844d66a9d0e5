#include "qt/editor/code_tools.h"

#include <QFrame>
#include <QKeySequence>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "qt/editor/code_edit.h"
#include "qt/kit/icon_set.h"

namespace tarnwick {

CodeTools::CodeTools(std::span<const CodeTool> tools, QToolBar& bar, QWidget& window) {
  for (const CodeTool& tool : tools) {
    auto* action =
        new QAction(IconOf(QString::fromLatin1(tool.Icon)),
                    QString::fromLatin1(tool.Caption[0] != 0 ? tool.Caption : tool.Tip), &window);
    const QString key = QString::fromLatin1(tool.Key);
    if (!key.isEmpty()) {
      action->setShortcut(QKeySequence(key));
      action->setShortcutContext(Qt::WindowShortcut);
    }
    action->setToolTip(key.isEmpty()
                           ? QString::fromLatin1(tool.Tip)
                           : QStringLiteral("%1 (%2)").arg(QString::fromLatin1(tool.Tip), key));
    bar.addAction(action);
    if (auto* button = bar.widgetForAction(action)) {
      button->setObjectName(QStringLiteral("BtnMenu_%1").arg(actions_.size()));
      button->setAccessibleName(QString::fromLatin1(tool.Tip));
    }
    window.addAction(action);
    actions_.push_back(action);
  }
}

void CodeTools::Run(int index, std::function<void()> command) {
  QObject::connect(&Action(index), &QAction::triggered, &Action(index),
                   [command = std::move(command)] { command(); });
}

void CodeTools::RunEdit(CodeEdit& code, int first) {
  const std::array<void (QsciScintilla::*)(), 5> commands{
      &QsciScintilla::cut, &QsciScintilla::copy, &QsciScintilla::paste, &QsciScintilla::undo,
      &QsciScintilla::redo};
  for (std::size_t i = 0; i < commands.size(); ++i) {
    Run(first + static_cast<int>(i), [&code, command = commands[i]] {
      (code.*command)();
      code.SetFocus();
    });
  }
  const auto refresh = [this, &code, first] {
    Action(first + 3).setEnabled(code.isUndoAvailable());
    Action(first + 4).setEnabled(code.isRedoAvailable());
  };
  QObject::connect(&code, &QsciScintilla::textChanged, &code, refresh);
  // A text that is set empties the history behind its change.
  QObject::connect(&code, &QsciScintillaBase::SCN_SAVEPOINTREACHED, &code, refresh);
  refresh();
}

QFrame* FrameOf(CodeEdit& code) {
  auto* frame = new QFrame;
  frame->setObjectName(QStringLiteral("CodeFrame"));
  frame->setProperty("panel", true);
  auto* room = new QVBoxLayout(frame);
  room->setContentsMargins(1, 1, 1, 1);
  code.setFrameShape(QFrame::NoFrame);
  room->addWidget(&code);
  return frame;
}

}  // namespace tarnwick
