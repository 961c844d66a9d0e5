#include "run/class_probes.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMetaEnum>
#include <QScrollArea>
#include <QTest>
#include <QTextEdit>
#include <cmath>

#include "looks/text_bridge.h"
#include "platform/native_path.h"
#include "run/views/run_form.h"
#include "text/strings.h"

namespace tarnwick::test {
namespace {

std::string Numbers(std::initializer_list<int> numbers) {
  std::string text;
  for (const int number : numbers) text += (text.empty() ? "" : ",") + std::to_string(number);
  return text;
}

std::string Bool(bool value) {
  return value ? "true" : "false";
}

/// Numbers with commas between; * is any number, <n a smaller one.
bool Fits(const std::string& found, const std::string& wanted) {
  const std::vector<std::string_view> is = Split(found, ",");
  const std::vector<std::string_view> want = Split(wanted, ",");
  if (is.size() != want.size()) return false;
  for (std::size_t i = 0; i < is.size(); ++i) {
    if (want[i] == "*") continue;
    if (want[i].starts_with('<')) {
      if (std::stoi(std::string(is[i])) >= std::stoi(std::string(want[i].substr(1)))) return false;
    } else if (is[i] != want[i]) {
      return false;
    }
  }
  return true;
}

/// What a probe looks at.
struct Sight {
  LiveProgram& Live;
  const std::string& Name;
  const std::string& Wanted;

  [[nodiscard]] QWidget& Widget() const { return Live.The<QWidget>(Name); }
  [[nodiscard]] QWidget& Client() const {
    auto* const form = dynamic_cast<run::RunForm*>(Live.Widget(Name));
    auto* const above = dynamic_cast<run::RunForm*>(Live.Widget("F"));
    return *(form == nullptr ? above : form)->Client();
  }
  [[nodiscard]] std::string Part(std::size_t index) const {
    const std::vector<std::string_view> parts = Split(Wanted, ",");
    return index < parts.size() ? std::string(parts[index]) : std::string();
  }
  [[nodiscard]] QListWidget* List() const { return qobject_cast<QListWidget*>(&Widget()); }
  [[nodiscard]] QComboBox* Combo() const { return qobject_cast<QComboBox*>(&Widget()); }
};

std::string Rect(const Sight& at) {
  const QRect rect = at.Widget().geometry();
  return Numbers({rect.x(), rect.y(), rect.width(), rect.height()});
}

std::string Next(const Sight& at) {
  const QWidget* const from = &at.Widget();
  for (QWidget* next = from->nextInFocusChain(); next != from; next = next->nextInFocusChain()) {
    if (next->focusPolicy() == Qt::NoFocus || from->isAncestorOf(next)) continue;
    return looks::FromQString(next->objectName());
  }
  return {};
}

std::string PopupRow(const Sight& at) {
  QWidget* const client = qobject_cast<QWidget*>(&at.Client());
  QWidget* target = at.Name == "F" ? client : &at.Widget();
  auto* const box = qobject_cast<QScrollArea*>(target);
  auto* const area = qobject_cast<QAbstractScrollArea*>(target);
  if (area != nullptr) target = box != nullptr ? box->widget() : area->viewport();
  QTest::mouseClick(target, Qt::RightButton, {}, QPoint(3, 3));
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  if (menu == nullptr || menu->actions().isEmpty()) return "no menu";
  const std::string text = looks::FromQString(menu->actions().at(0)->text());
  menu->hide();
  return text;
}

/// Types the keys and reads the text; the wanted text stands behind the comma.
std::string Typed(const Sight& at) {
  auto& edit = at.Live.The<QTextEdit>(at.Name);
  edit.setFocus();
  for (const char key : ReplaceAll(at.Part(0), "\\n", "\n")) {
    if (key == '\n') {
      QTest::keyClick(&edit, Qt::Key_Return);
    } else {
      QTest::keyClick(&edit, key);
    }
  }
  return at.Part(0) + "," + looks::FromQString(edit.toPlainText());
}

std::string Entry(const Sight& at) {
  const int row = std::stoi(at.Part(0));
  QString text;
  if (at.List() != nullptr && row < at.List()->count()) text = at.List()->item(row)->text();
  if (at.Combo() != nullptr) text = at.Combo()->itemText(row);
  return at.Part(0) + "," + looks::FromQString(text);
}

std::string RowHeight(const Sight& at) {
  QAbstractItemView* const view =
      at.List() != nullptr ? static_cast<QAbstractItemView*>(at.List()) : at.Combo()->view();
  return std::to_string(view->sizeHintForRow(0));
}

QAction* ActionIn(const QList<QAction*>& rows, const QString& name) {
  for (QAction* const row : rows) {
    if (row->objectName() == name) return row;
    QAction* const below =
        row->menu() == nullptr ? nullptr : ActionIn(row->menu()->actions(), name);
    if (below != nullptr) return below;
  }
  return nullptr;
}

std::string Action(const Sight& at) {
  const QMenuBar* const bar = at.Live.Widget("F")->findChild<QMenuBar*>();
  const QAction* const action = ActionIn(bar->actions(), looks::ToQString(at.Name));
  const std::string what = at.Part(0);
  if (what == "gone") return action == nullptr ? "gone" : "there";
  if (action == nullptr) return "no row";
  if (what == "bold") return action->font().bold() ? "bold" : "thin";
  if (what == "icon") return action->icon().isNull() ? "no icon" : "icon";
  return what + "," + looks::FromQString(action->property(what.c_str()).toString());
}

/// Opens the dialog, looks at it and closes it.
std::string InDialog(const Sight& at, const std::function<std::string(QFileDialog&)>& look) {
  std::string found = "no dialog";
  QTimer::singleShot(0, qApp, [&] {
    auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    found = look(*dialog);
    if (dialog->isVisible()) dialog->reject();
  });
  at.Live.World->Click(at.Live.Object("Ask").Id);
  return found;
}

std::string Dialog(const Sight& at) {
  const std::string what = at.Part(0);
  return InDialog(at, [&](QFileDialog& dialog) {
    QString found;
    if (what == "name") {
      found = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
    } else if (what == "filters") {
      found = dialog.nameFilters().value(0);
    } else if (what == "filter") {
      found = dialog.selectedNameFilter();
    } else if (what == "folder") {
      return what + "," + PathFromNative(dialog.directory().path().toStdString());
    } else {
      found = dialog.property(what.c_str()).toString();
      if (found.isEmpty()) found = dialog.defaultSuffix();
    }
    return what + "," + looks::FromQString(found);
  });
}

std::string PickedInDialog(const Sight& at) {
  at.Live.Printed.clear();
  InDialog(at, [&](QFileDialog& dialog) {
    auto* const name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    name->setText(looks::ToQString(at.Wanted));
    QTest::keyClick(name, Qt::Key_Return);
    return std::string();
  });
  const std::string& printed = at.Live.Printed;
  return printed.substr(std::min(printed.rfind('\\') + 1, printed.size()));
}

struct ProbeRow {
  const char* Word;
  std::string (*Look)(const Sight&);
};
const ProbeRow kProbes[] = {
    {"rect", Rect},
    {"place",
     [](const Sight& at) {
       return Numbers({at.Widget().x(), at.Widget().y()});
     }},
    {"client",
     [](const Sight& at) {
       return Numbers({at.Client().width(), at.Client().height()});
     }},
    {"clientCursor", [](const Sight& at) { return Numbers({at.Client().cursor().shape()}); }},
    {"clientTip", [](const Sight& at) { return looks::FromQString(at.Client().toolTip()); }},
    {"ontop",
     [](const Sight& at) {
       return Bool(at.Widget().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
     }},
    {"icon", [](const Sight& at) { return Bool(!at.Widget().windowIcon().isNull()); }},
    {"minimized", [](const Sight& at) { return Bool(at.Widget().isMinimized()); }},
    {"cursor", [](const Sight& at) { return Numbers({at.Widget().cursor().shape()}); }},
    {"window",
     [](const Sight& at) { return looks::FromQString(at.Widget().window()->objectName()); }},
    {"opacity",
     [](const Sight& at) {
       const double opacity = at.Widget().window()->windowOpacity();
       return std::abs(opacity - std::stod(at.Wanted)) < 0.01 ? at.Wanted : std::to_string(opacity);
     }},
    {"popup", PopupRow},
    {"next", Next},
    {"typed", Typed},
    {"caret",
     [](const Sight& at) {
       return std::to_string(at.Live.The<QTextEdit>(at.Name).textCursor().position());
     }},
    {"selected",
     [](const Sight& at) {
       return looks::FromQString(at.Live.The<QTextEdit>(at.Name).textCursor().selectedText());
     }},
    {"entry", Entry},
    {"rowHeight", RowHeight},
    {"action", Action},
    {"dialog", Dialog},
    {"picked", PickedInDialog},
};

/// A property of the widget, or behind "line." of the line that a drop-down list has.
std::string PropertyOf(const Sight& at, std::string word) {
  QObject* object = &at.Widget();
  constexpr std::string_view kLine = "line.";
  if (word.starts_with(kLine)) {
    object = at.Combo()->lineEdit();
    word.erase(0, kLine.size());
  }
  const QVariant value = object->property(word.c_str());
  if (!value.isValid()) return "no property " + word;
  const QMetaObject* const meta = object->metaObject();
  const QMetaProperty property = meta->property(meta->indexOfProperty(word.c_str()));
  if (property.isEnumType()) return std::to_string(value.toInt());
  return looks::FromQString(value.toString());
}

}  // namespace

std::string Missing(LiveProgram& live, const std::string& name, const std::string& cell) {
  const std::size_t equal = cell.find('=');
  const std::string word = cell.substr(0, equal);
  const std::string wanted = equal == std::string::npos ? "" : cell.substr(equal + 1);
  const Sight sight{live, name, wanted};
  std::string found;
  bool known = false;
  for (const ProbeRow& row : kProbes) {
    if (word != row.Word) continue;
    found = row.Look(sight);
    known = true;
  }
  if (!known) found = PropertyOf(sight, word);
  return found == wanted || Fits(found, wanted) ? "" : word + "=" + found;
}

}  // namespace tarnwick::test
