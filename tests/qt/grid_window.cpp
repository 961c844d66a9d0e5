#include "qt/grid_window.h"

namespace tarnwick {

GridWindow::GridWindow() = default;

GridWindow::~GridWindow() = default;

PropertySheet& GridWindow::Sheet() {
  return program.Shell().Sheet();
}

int GridWindow::RowOf(std::string_view name) {
  return program.GridRow(name);
}

QLineEdit& GridWindow::Cell(std::string_view row) {
  return program.Find<QLineEdit>(QStringLiteral("Text_%1").arg(RowOf(row)));
}

QLabel& GridWindow::NameOf(std::string_view row) {
  return program.Find<QLabel>(QStringLiteral("Label_%1").arg(RowOf(row)));
}

QToolButton& GridWindow::Button(const char* name) {
  return program.Find<QToolButton>(name);
}

QListWidget& GridWindow::List() {
  return program.Find<QListWidget>(QStringLiteral("ListBox"));
}

void GridWindow::Enter(std::string_view row) {
  program.EnterRow(row);
  EXPECT_EQ(Sheet().RowIndex(), RowOf(row));
}

void GridWindow::Type(std::string_view row, const QString& text) {
  Enter(row);
  program.Type(text);
}

QColor GridWindow::BackOf(std::string_view row) {
  const QPoint place = NameOf(row).mapTo(&program.Window(), QPoint(2, 2));
  return program.Window().grab(QRect(place, QSize(1, 1))).toImage().pixelColor(0, 0);
}

std::string GridWindow::Shown(std::string_view row) {
  return Cell(row).text().toStdString();
}

std::string GridWindow::Focused() {
  const QWidget* widget = QApplication::focusWidget();
  return widget != nullptr ? widget->objectName().toStdString() : "";
}

std::string GridWindow::CellName(std::string_view row) {
  return "Text_" + std::to_string(RowOf(row));
}

void GridWindow::ExpectLine(std::string_view line) {
  const std::string source = program.Source();
  EXPECT_NE(source.find(line), std::string::npos) << line << " in\n" << source;
}

}  // namespace tarnwick
