#include "qt/kit/theme.h"

#include <QApplication>
#include <QStyleFactory>

namespace tarnwick {

namespace {

struct Colors {
  QColor Window, Base, Alternate, Button, Text, Quiet, Disabled, Accent, OnAccent, Line, Hover,
      Desk;
};

const Colors& ColorsOf(Theme theme) {
  static const Colors light{QColor(0xF3F5F6), QColor(0xFFFFFF), QColor(0xF8FAFA), QColor(0xFBFCFC),
                            QColor(0x1B2429), QColor(0x5B6870), QColor(0x9AA5AB), QColor(0x0F766E),
                            QColor(0xFFFFFF), QColor(0xD5DBDF), QColor(0xDDEDEB), QColor(0xDDE2E5)};
  static const Colors dark{QColor(0x1E2327), QColor(0x171B1E), QColor(0x1B2024), QColor(0x282F34),
                           QColor(0xE4E9EB), QColor(0x98A4AB), QColor(0x66727A), QColor(0x2DD4BF),
                           QColor(0x08201D), QColor(0x39424A), QColor(0x24403E), QColor(0x262C31)};
  return theme == Theme::Dark ? dark : light;
}

/// What the style's own drawing leaves to be said. %1 line, %2 hover, %3 accent, %4 base,
/// %5 quiet text, %6 window, %7 disabled text, %8 the theme.
constexpr auto kSheet = R"(
QToolBar { border: none; padding: 4px 6px; spacing: 2px; }
QToolBar#BtnMenuBar { border-bottom: 1px solid %1; }
QToolBar::separator { background: %1; width: 1px; margin: 5px 6px; }
QToolButton { border: 1px solid transparent; border-radius: 5px; padding: 4px; }
QToolButton:hover:enabled { background: %2; }
QToolButton:pressed, QToolButton:checked { background: %2; border-color: %3; }
QToolButton:focus { border-color: %3; }
QMenuBar { border-bottom: 1px solid %1; padding: 2px 4px; }
QMenuBar::item { padding: 5px 10px; border-radius: 5px; background: transparent; }
QMenuBar::item:selected { background: %2; }
QMenu { background: %4; border: 1px solid %1; padding: 5px; }
QMenu::item { padding: 5px 24px 5px 8px; border-radius: 4px; }
QMenu::item:selected:enabled { background: %2; }
QMenu::item:disabled { color: %7; }
QMenu::icon { padding-left: 4px; }
QMenu::separator { height: 1px; background: %1; margin: 5px 8px; }
QStatusBar { border-top: 1px solid %1; }
QStatusBar::item { border: none; }
QStatusBar QLabel { padding: 2px 8px; color: %5; }
QToolTip { background: %4; border: 1px solid %1; padding: 4px 6px; }
QScrollBar:vertical { width: 12px; margin: 0; border: none; background: transparent; }
QScrollBar:horizontal { height: 12px; margin: 0; border: none; background: transparent; }
QScrollBar::handle { margin: 2px; border-radius: 4px; background: %1; }
QScrollBar::handle:vertical { min-height: 28px; }
QScrollBar::handle:horizontal { min-width: 28px; }
QScrollBar::handle:hover { background: %5; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QSplitter::handle { background: transparent; }
QSplitter::handle:hover { background: %2; }
QFrame[panel="true"] { background: %4; border: 1px solid %1; border-radius: 6px; }
QLineEdit, QPlainTextEdit { border: 1px solid %1; border-radius: 5px; background: %4; }
QLineEdit { padding: 3px 4px; }
QLineEdit:focus, QPlainTextEdit:focus { border-color: %3; }
tarnwick--PropertyRowView QLineEdit { border: none; border-radius: 0; padding: 0 2px; }
QPlainTextEdit#RowHelp { border: none; border-radius: 0; color: %5; }
QFrame#CodeFrame, QListWidget#lstIntellisense { border-radius: 0; }
QListWidget#ListBox { border: 1px solid %3; border-radius: 0; }
tarnwick--PropertyGrid QToolButton { padding: 2px; background: %4; }
tarnwick--PropertyGrid QToolButton:focus { border-color: %3; background: %2; }
QCheckBox::indicator { width: 14px; height: 14px; border: 1px solid %5; border-radius: 3px; background: %4; }
QCheckBox::indicator:checked { border-color: %3; background: %3; image: url(:/icons/tick-%8.svg); }
QCheckBox::indicator:focus { border-color: %3; }
QComboBox { border: 1px solid %1; border-radius: 5px; padding: 3px 6px; background: %4; }
QComboBox:hover:enabled { background: %2; }
QComboBox:focus, QComboBox:on { border-color: %3; }
QComboBox:disabled { color: %7; }
QComboBox::drop-down { border: none; width: 20px; }
QComboBox::down-arrow { width: 12px; height: 12px; image: url(:/icons/open-list-%8.svg); }
QComboBox::down-arrow:disabled { image: none; }
QComboBox QAbstractItemView { border: 1px solid %1; border-radius: 5px; padding: 2px; background: %4; outline: 0; selection-background-color: %2; selection-color: palette(text); }
QTabWidget::pane { border: none; border-top: 1px solid %1; }
QTabBar { qproperty-drawBase: 0; }
QTabBar::tab { border: none; border-bottom: 2px solid transparent; padding: 6px 10px; color: %5; background: transparent; }
QTabBar::tab:hover { color: palette(text); background: %2; }
QTabBar::tab:selected { border-bottom-color: %3; color: palette(text); }
QTabBar::tab:focus { color: %3; }
QDialogButtonBox, QMessageBox { dialogbuttonbox-buttons-have-icons: 0; }
QPushButton { border: 1px solid %1; border-radius: 5px; padding: 5px 14px; background: %4; }
QPushButton:hover:enabled, QPushButton:pressed { background: %2; }
QPushButton:default, QPushButton:focus { border-color: %3; }
QPushButton:disabled { color: %7; }
QDialogButtonBox QPushButton { min-width: 56px; }
QLabel[heading="true"] { font-weight: 600; }
QLabel[quiet="true"] { color: %5; }
QListWidget { border: 1px solid %1; border-radius: 5px; padding: 2px; background: %4; outline: 0; }
QFrame[panel="true"] QListWidget { border: none; }
QListWidget::item { padding: 4px 6px; border-radius: 4px; }
QListWidget::item:hover { background: %6; }
QListWidget::item:selected { background: %2; color: palette(text); }
)";

}  // namespace

Theme ThemeOf(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < 128 ? Theme::Dark : Theme::Light;
}

QColor AccentOf(const QPalette& palette) {
  return ColorsOf(ThemeOf(palette)).Accent;
}

QColor LineOf(const QPalette& palette) {
  return ColorsOf(ThemeOf(palette)).Line;
}

QColor TitleOf() {
  return ColorsOf(Theme::Light).Accent;
}

QPalette PaletteOf(Theme theme) {
  const Colors& c = ColorsOf(theme);
  QPalette palette(c.Button, c.Window);
  palette.setColor(QPalette::Window, c.Window);
  palette.setColor(QPalette::Base, c.Base);
  palette.setColor(QPalette::AlternateBase, c.Alternate);
  palette.setColor(QPalette::Button, c.Button);
  palette.setColor(QPalette::ToolTipBase, c.Base);
  palette.setColor(QPalette::PlaceholderText, c.Quiet);
  palette.setColor(QPalette::Mid, c.Desk);
  palette.setColor(QPalette::Highlight, c.Accent);
  palette.setColor(QPalette::HighlightedText, c.OnAccent);
  palette.setColor(QPalette::Link, c.Accent);
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(role, c.Text);
    palette.setColor(QPalette::Disabled, role, c.Disabled);
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, c.Line);
  return palette;
}

void ApplyTheme(QApplication& application, Theme theme) {
  const Colors& c = ColorsOf(theme);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setPalette(PaletteOf(theme));
  application.setStyleSheet(QString::fromLatin1(kSheet).arg(
      c.Line.name(), c.Hover.name(), c.Accent.name(), c.Base.name(), c.Quiet.name(),
      c.Window.name(), c.Disabled.name(), QLatin1String(theme == Theme::Dark ? "dark" : "light")));
}

}  // namespace tarnwick
