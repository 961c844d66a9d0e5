// The widgets of the main window.
#pragma once

#include <QMainWindow>

#include "looks/picture_cache.h"
#include "qt/surface/text_cache.h"

class QLabel;
class QSplitter;

namespace tarnwick {

class CommandActions;
class Container;
class EventsBarWindow;
class FormListPanel;
class IconDisplay;
class FilePort;
class MDIForm1;
class ObjectBar;
class PropertyPanel;
class ToolBoxPanel;

/// Menu bar and toolbar above, tool box at the left, container in the middle, panels at the right,
/// status bar below. What happens is decided by the shell; this only builds and lays out.
class MainWindow final : public QMainWindow {
  Q_OBJECT

 public:
  explicit MainWindow(FilePort& files);
  ~MainWindow() override;

  /// Gives all parts the logic they forward to.
  void Attach(MDIForm1& shell);
  /// State of all commands and tools changed.
  void RefreshCommands();

  [[nodiscard]] Container& Forms() { return *container_; }
  [[nodiscard]] FormListPanel& FormLines() { return *form_list_; }
  [[nodiscard]] PropertyPanel& Properties() { return *properties_; }
  [[nodiscard]] IconDisplay& ProgramIconView() { return *icon_; }
  [[nodiscard]] ObjectBar& FloatingTools() { return *object_bar_; }
  [[nodiscard]] EventsBarWindow& EventButtons() { return *events_bar_; }
  [[nodiscard]] CommandActions& Actions() { return *actions_; }
  [[nodiscard]] looks::PictureCache& Pictures() { return pictures_; }
  void SetStatus(const QString& text);
  void SetSelectionText(const QString& text);
  /// Place of the pointer on a design form; a negative one empties the text.
  void SetPointerText(const QPoint& place);
  void SetPropertiesVisible(bool visible);
  void SetFormListVisible(bool visible);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildPanels();
  void BuildStatusBar();

  looks::PictureCache pictures_;
  TextCache texts_;
  MDIForm1* shell_ = nullptr;
  CommandActions* actions_;
  Container* container_;
  ToolBoxPanel* tools_;
  FormListPanel* form_list_ = nullptr;
  PropertyPanel* properties_ = nullptr;
  IconDisplay* icon_;
  ObjectBar* object_bar_;
  EventsBarWindow* events_bar_;
  QWidget* right_;
  QSplitter* panels_;
  QLabel* status_;
  QLabel* selection_;
  QLabel* pointer_;
};

}  // namespace tarnwick
