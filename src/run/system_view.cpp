#include "run/system_view.h"

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QFontDatabase>
#include <QIcon>
#include <QMimeData>
#include <QScreen>
#include <QToolTip>
#include <algorithm>

#include "looks/platform_colors.h"
#include "looks/text_bridge.h"
#include "run/classic_palette.h"
#include "run/drawing_surfaces.h"
#include "run/file_dialogs.h"
#include "run/stage.h"
#include "run/widget_view.h"

namespace tarnwick::run {
namespace {

QSize ScreenSize() {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  return screen == nullptr ? QSize(1024, 768) : screen->size();
}

/// A text of the clipboard with the line ends that programs expect.
QString WithCarriageReturns(QString text) {
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  return text.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
}

// --- Values that only the system knows

struct LiveRow {
  ObjectClass Class;
  Word Property;
  Value (*Read)(std::span<const Value>);
};

Value FontNameAt(std::span<const Value> index) {
  const QStringList families = QFontDatabase::families();
  const std::int64_t at = index.empty() ? -1 : index[0].AsInteger();
  const bool known = at >= 0 && at < families.size();
  return Value::Text(known ? looks::FromQString(families.at(at)) : std::string());
}

Value ClipboardText(std::span<const Value> /*index*/) {
  return Value::Text(looks::FromQString(WithCarriageReturns(QApplication::clipboard()->text())));
}

const LiveRow kLive[] = {
    {ObjectClass::Screen, Word::Width,
     [](std::span<const Value>) { return Value::Integer(ScreenSize().width()); }},
    {ObjectClass::Screen, Word::Height,
     [](std::span<const Value>) { return Value::Integer(ScreenSize().height()); }},
    {ObjectClass::Screen, Word::MouseX,
     [](std::span<const Value>) { return Value::Integer(QCursor::pos().x()); }},
    {ObjectClass::Screen, Word::MouseY,
     [](std::span<const Value>) { return Value::Integer(QCursor::pos().y()); }},
    {ObjectClass::Screen, Word::FontCount,
     [](std::span<const Value>) { return Value::Integer(QFontDatabase::families().size()); }},
    {ObjectClass::Screen, Word::FontName, FontNameAt},
    {ObjectClass::Application, Word::Active,
     [](std::span<const Value>) {
       return Value::Integer(QApplication::activeWindow() != nullptr ? 1 : 0);
     }},
    {ObjectClass::Clipboard, Word::Text, ClipboardText},
};

// --- Properties

struct ApplyRow {
  ObjectClass Class;
  Word Property;
  void (*Show)(Stage&, const ObjectRecord&);
};

void ShowScreenCursor(Stage& /*stage*/, const ObjectRecord& screen) {
  if (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
  const std::int64_t number = screen.Number(Word::Cursor);
  if (number != 0) QApplication::setOverrideCursor(CursorOf(number));
}

void ShowApplicationIcon(Stage& stage, const ObjectRecord& application) {
  const QPixmap& picture = stage.Surfaces().PictureOf(application);
  if (!picture.isNull()) QApplication::setWindowIcon(QIcon(picture));
}

void ShowHintColor(Stage& /*stage*/, const ObjectRecord& application) {
  QPalette palette = QToolTip::palette();
  palette.setColor(QPalette::ToolTipBase,
                   looks::ColorOf(static_cast<std::int32_t>(application.Number(Word::HintColor))));
  QToolTip::setPalette(palette);
}

void ShowHints(Stage& /*stage*/, const ObjectRecord& application) {
  constexpr std::int64_t kLongest = 60'000;
  const auto time = [&](Word word) {
    return static_cast<int>(std::clamp<std::int64_t>(application.Number(word), 0, kLongest));
  };
  ProgramHints() = {time(Word::HintPause), time(Word::HintHidePause),
                    application.Truth(Word::ShowHint)};
}

void ShowTitle(Stage& /*stage*/, const ObjectRecord& application) {
  QGuiApplication::setApplicationDisplayName(looks::ToQString(application.Text(Word::Title)));
}

void ShowClipboard(Stage& /*stage*/, const ObjectRecord& clipboard) {
  QString text = looks::ToQString(clipboard.Text(Word::Text));
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  if (text.isEmpty()) {
    QApplication::clipboard()->clear();
  } else {
    QApplication::clipboard()->setText(text);
  }
}

constexpr ApplyRow kApply[] = {
    {ObjectClass::Screen, Word::Cursor, ShowScreenCursor},
    {ObjectClass::Application, Word::Icon, ShowApplicationIcon},
    {ObjectClass::Application, Word::IcoHandle, ShowApplicationIcon},
    {ObjectClass::Application, Word::Title, ShowTitle},
    {ObjectClass::Application, Word::HintColor, ShowHintColor},
    {ObjectClass::Application, Word::HintPause, ShowHints},
    {ObjectClass::Application, Word::HintHidePause, ShowHints},
    {ObjectClass::Application, Word::ShowHint, ShowHints},
    {ObjectClass::Clipboard, Word::Text, ShowClipboard},
};

// --- Methods

struct InvokeRow {
  ObjectClass Class;
  Word Method;
  void (*Call)(std::span<Value>, Value&);
};

/// The windows of the program that are to be seen.
template <class Function>
void ForEachWindow(Function use) {
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowType() != Qt::Popup) use(*window);
  }
}

void HasFormat(std::span<Value> arguments, Value& result) {
  constexpr std::int64_t kText = 1;
  constexpr std::int64_t kBitmap = 2;
  const QMimeData* const data = QApplication::clipboard()->mimeData();
  const std::int64_t format = arguments.empty() ? 0 : arguments[0].AsInteger();
  const bool there = data != nullptr && ((format == kText && data->hasText()) ||
                                         (format == kBitmap && data->hasImage()));
  result = Value::Integer(there ? 1 : 0);
}

const InvokeRow kInvoke[] = {
    {ObjectClass::Clipboard, Word::HasFormat, HasFormat},
    {ObjectClass::Application, Word::Minimize,
     [](std::span<Value>, Value&) { ForEachWindow([](QWidget& w) { w.showMinimized(); }); }},
    {ObjectClass::Application, Word::Restore,
     [](std::span<Value>, Value&) { ForEachWindow([](QWidget& w) { w.showNormal(); }); }},
    {ObjectClass::Application, Word::BringToFront,
     [](std::span<Value>, Value&) {
       ForEachWindow([](QWidget& w) {
         w.raise();
         w.activateWindow();
       });
     }},
};

}  // namespace

void ApplySystem(Stage& stage, const ObjectRecord& object, Word property) {
  for (const ApplyRow& row : kApply) {
    if (object.Is(row.Class) && row.Property == property) return row.Show(stage, object);
  }
}

bool InvokeSystem(Stage& stage, const ObjectRecord& object, Word method, std::span<Value> arguments,
                  Value& result) {
  if (object.Is(ObjectClass::QPopupMenu) && method == Word::Popup && arguments.size() == 2) {
    stage.Popup(object.Id, QPoint(static_cast<int>(arguments[0].AsInteger()),
                                  static_cast<int>(arguments[1].AsInteger())));
    return true;
  }
  if (object.Is(ObjectClass::QFontDialog) && method == Word::Execute) {
    bool picked = false;
    stage.Within([&] { picked = PickFontByDialog(stage, object, QApplication::activeWindow()); });
    result = Value::Integer(picked ? 1 : 0);
    return true;
  }
  for (const InvokeRow& row : kInvoke) {
    if (!object.Is(row.Class) || row.Method != method) continue;
    row.Call(arguments, result);
    return true;
  }
  return false;
}

bool LiveSystem(Stage& /*stage*/, const ObjectRecord& object, Word property,
                std::span<const Value> index, Value& out) {
  for (const LiveRow& row : kLive) {
    if (!object.Is(row.Class) || row.Property != property) continue;
    out = row.Read(index);
    return true;
  }
  return false;
}

}  // namespace tarnwick::run
