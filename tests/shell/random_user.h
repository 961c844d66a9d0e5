// A user who does random but sensible things to a main window.
#pragma once

#include <functional>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "designer/form_user.h"
#include "fakes/fake_edit_widget.h"
#include "fakes/fake_ports.h"
#include "inspector/property_sheet.h"
#include "menus/menu_designer.h"
#include "shell/command_center.h"
#include "shell/form_commands.h"
#include "shell/mdi_form.h"

namespace tarnwick {

/// Drives a main window that has been started, over fake ports, however its windows are made:
///
///   RandomUser user(main, ports, seed);
///   for (int i = 0; i < 200; ++i) user.Act();
///   EXPECT_EQ(user.Fault(), "");
///   user.SaveAndReload();
///
/// The same seed gives the same deeds. What was done is told by `Deeds`.
class RandomUser {
 public:
  RandomUser(MDIForm1& main, FakePorts& ports, unsigned seed)
      : main_(main), ports_(ports), random_(seed), seed_(seed) {}

  /// Does one thing. A window that has grown beyond `kMostObjects` gets no further ones.
  void Act();
  /// Saves, reads the project again, saves once more: the files must hold the same bytes. Answers
  /// the first difference, "" for none.
  std::string SaveAndReload();
  /// What is wrong with the state of the window; "" while all is well.
  [[nodiscard]] std::string Fault() const;
  /// How many objects came back from files so far.
  [[nodiscard]] std::size_t ObjectsRead() const { return objects_read_; }
  /// The last things done, the newest last.
  [[nodiscard]] std::string Deeds() const;

  /// Saves and returns the bytes of the project's files by path.
  [[nodiscard]] std::map<std::string, std::string> Saved();

  /// Whether a new project may be started, and whether forms may be added and removed.
  bool StartsAnew = true;
  bool Saves = true;
  bool ChangesForms = true;
  /// Sets the cursor of a form's gestures, screen pixels; without it objects are not dragged.
  std::function<void(int form, ScreenPoint place)> SetCursor;

 private:
  static constexpr int kMostObjects = 60;
  static constexpr std::size_t kMostForms = 6;

  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  void Did(std::string deed);
  [[nodiscard]] std::vector<ControlRef> Objects();
  [[nodiscard]] DesignForm* Form() { return main_.Tables().CurrentForm; }

  void PutObject();
  void PressObject();
  void DragObject();
  void PressKey();
  void RunCommand();
  void EditCode();
  void EditProperty();
  void TypeIntoRow(int row);
  void EditItems();
  void EditMenu();
  void EditPopUp();
  void EditRows(menus::MenuDesigner& designer);
  void SizeWindow();
  void ChooseForm();
  void AddOrRemoveForm();
  void SaveOrStartAnew();
  void Save();
  [[nodiscard]] std::map<std::string, std::string> SavedFiles() const;
  [[nodiscard]] std::string FaultOfForm(int number) const;

  MDIForm1& main_;
  FakePorts& ports_;
  std::mt19937 random_;
  unsigned seed_;
  int names_given_ = 0;
  test::FakeEditWidget code_text_;
  std::size_t objects_read_ = 0;
  std::vector<std::string> deeds_;
};

}  // namespace tarnwick
