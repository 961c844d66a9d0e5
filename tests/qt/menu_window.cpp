#include "qt/menu_window.h"

namespace tarnwick {

MenuDesigners::MenuDesigners() = default;

MenuDesigners::~MenuDesigners() = default;

bool TakesKeys(const QWidget& window) {
  return QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; });
}

Designer::Designer(QDialog& dialog) : Dialog(dialog) {}

QListWidget& Designer::List() const {
  return *Dialog.findChild<QListWidget*>(QStringLiteral("ListMenu"));
}

QLineEdit& Designer::Text(int index) const {
  return *Dialog.findChild<QLineEdit*>(QStringLiteral("Texto_%1").arg(index));
}

QPushButton& Designer::Button(int index) const {
  return *Dialog.findChild<QPushButton*>(QStringLiteral("Command1_%1").arg(index));
}

MenuPreviewView& Designer::Preview() const {
  return *Dialog.findChild<MenuPreviewView*>();
}

QString Designer::Fault() const {
  return Dialog.findChild<QLabel*>(QStringLiteral("Fault"))->text();
}

Rows Designer::Shown() const {
  Rows rows;
  for (int row = 0; row < List().count(); ++row) {
    rows.push_back(List().item(row)->text().toStdString());
  }
  return rows;
}

void Designer::Press(int index) const {
  QTest::mouseClick(&Button(index), Qt::LeftButton);
}

void Designer::Key(Qt::Key key, Qt::KeyboardModifiers held) const {
  QTest::keyClick(Dialog.windowHandle(), key, held);
}

void Designer::Type(const char* text) const {
  for (const char letter : std::string_view(text)) {
    QTest::sendKeyEvent(QTest::Click, Dialog.windowHandle(), Qt::Key_unknown,
                        QString(QLatin1Char(letter)), Qt::NoModifier);
  }
}

void Designer::Add(const char* caption, const char* name) const {
  Type(caption);
  Key(Qt::Key_Tab);
  Type(name);
  Key(Qt::Key_Return);
}

void Designer::Ok() const {
  Key(Qt::Key_Return, Qt::ControlModifier);
}

void Designer::Cancel() const {
  Key(Qt::Key_Escape);
}

Rows MenuDesigners::MenuRows() {
  return menus::RowsOfFormMenu(program.Form());
}

QWidget& MenuDesigners::Code() {
  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto found = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
    return window->objectName() == QLatin1String("FormCodigo");
  });
  EXPECT_NE(found, windows.end());
  return **found;
}

void MenuDesigners::TypeCode(const std::string& text) {
  ASSERT_TRUE(Code().isVisible());
  ASSERT_TRUE(TakesKeys(Code()));
  program.Type(QString::fromStdString(text));
  program.Key(Qt::Key_Return, Qt::ControlModifier);
  ASSERT_FALSE(Code().isVisible());
}

QAbstractButton& MenuDesigners::Title(int number) {
  return *program.Window()
              .Forms()
              .Window(program.Form().Number())
              ->findChild<QAbstractButton*>(QStringLiteral("mnuBar_%1").arg(number));
}

}  // namespace tarnwick
