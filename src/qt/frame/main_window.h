// The widgets of the main window.
#pragma once

#include <QMainWindow>

#include "looks/picture_cache.h"
#include "qt/surface/text_cache.h"
#include "shell/window_placement.h"

class QLabel;
class QSplitter;
class QToolButton;

namespace tarnwick {

class CommandActions;
class Container;
class EventsBarWindow;
class FindingsPanel;
class FormListPanel;
class IconDisplay;
class FilePort;
class MDIForm1;
class ObjectBar;
class ObjectsExaminerWindow;
class OutputPanel;
class PropertyPanel;
class RightColumn;
class ToolBoxPanel;

/// Menu bar and toolbar above, tool box at the left, container in the middle, panels at the right,
/// status bar below. What happens is decided by the shell, each of whose parts
/// goes to the panel that shows it; this only builds and lays out.
class MainWindow final : public QMainWindow {
  Q_OBJECT

 public:
  MainWindow(MDIForm1& shell, FilePort& files);
  ~MainWindow() override;

  /// Where the window and its parts stand, and the way back there, as far as the screen has room.
  [[nodiscard]] WindowPlacement Placement() const;
  void TakePlacement(const WindowPlacement& last);
  /// State of all commands and tools changed.
  void RefreshCommands();

  [[nodiscard]] Container& Forms() { return *container_; }
  [[nodiscard]] FormListPanel& FormLines() { return *form_list_; }
  [[nodiscard]] PropertyPanel& Properties() { return *properties_; }
  [[nodiscard]] IconDisplay& ProgramIconView() { return *icon_; }
  [[nodiscard]] ObjectBar& FloatingTools() { return *object_bar_; }
  [[nodiscard]] EventsBarWindow& EventButtons() { return *events_bar_; }
  [[nodiscard]] FindingsPanel& Findings() { return *findings_; }
  [[nodiscard]] ObjectsExaminerWindow& Examiner() { return *examiner_; }
  [[nodiscard]] OutputPanel& Output() { return *output_; }
  [[nodiscard]] CommandActions& Actions() { return *actions_; }
  [[nodiscard]] looks::PictureCache& Pictures() { return pictures_; }
  void SetStatus(const QString& text);
  void SetSelectionText(const QString& text);
  /// Place of the pointer on a design form; a negative one empties the text.
  void SetPointerText(const QPoint& place);
  void SetPropertiesVisible(bool visible);
  void SetFormListVisible(bool visible);
  /// When the list of findings goes while it has the focus, the current form gets it.
  void SetFindingsVisible(bool visible);
  /// Likewise for what the running program printed.
  void SetOutputVisible(bool visible);
  /// Reads the findings and their number again.
  void RefreshFindings();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildPanels();
  void BuildStatusBar();
  /// Gives the focus to the current design form.
  void GoToForm();

  MDIForm1& shell_;
  looks::PictureCache pictures_;
  TextCache texts_;
  CommandActions* actions_;
  Container* container_;
  ToolBoxPanel* tools_;
  PropertyPanel* properties_;
  FormListPanel* form_list_;
  IconDisplay* icon_;
  ObjectBar* object_bar_;
  EventsBarWindow* events_bar_;
  FindingsPanel* findings_;
  ObjectsExaminerWindow* examiner_;
  OutputPanel* output_;
  QSplitter* panels_;
  RightColumn* right_;
  QSplitter* forms_;  ///< the container, with the findings below it
  QSplitter* middle_;
  int findings_height_ = 180;  ///< of the findings when they are shown next
  QLabel* status_;
  QToolButton* findings_word_;
  QLabel* selection_;
  QLabel* pointer_;
};

}  // namespace tarnwick
