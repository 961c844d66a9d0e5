// The generator against the runner: what a project's records say is what its running program has.
// Many projects made by chance are generated and run without a user; then every object's record is
// compared with the project's.
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "codegen/event_lookup.h"
#include "codegen/program_source.h"
#include "fakes/build_paths.h"
#include "fakes/object_program.h"
#include "fakes/random_project.h"
#include "model/menu_row.h"
#include "objects/runnable_project.h"
#include "text/strings.h"

namespace tarnwick::objects {
namespace {

using test::ObjectProgram;

std::map<std::string, std::string> Includes() {
  std::ifstream file(test::SourceFolder() + "/support/Tarnwick1.lib", std::ios::binary);
  return {{"C:\\Tarnwick\\Tarnwick1.lib", std::string(std::istreambuf_iterator<char>(file), {})}};
}

/// Projects tried; TARNWICK_PROJECTS asks for another number. A build that is not optimised, or
/// that watches its memory, takes ten times as long for each.
#ifdef NDEBUG
constexpr std::uint32_t kProjects = 1000;
#else
constexpr std::uint32_t kProjects = 60;
#endif
std::uint32_t Count() {
  const char* const wanted = std::getenv("TARNWICK_PROJECTS");
  return wanted == nullptr ? kProjects : static_cast<std::uint32_t>(std::atoi(wanted));
}

std::int64_t Pixels(float twips) {
  return std::llrint(static_cast<double>(twips) / kTwipsPerPixel);
}

/// Compares one project with the records of its program.
class Comparison {
 public:
  Comparison(ProjectTables& tables, ObjectProgram& program) : tables_(tables), program_(program) {}

  void All() {
    for (int number = 1; number <= tables_.FormsCount; ++number) Form(number);
    if (tables_.MenuTitles.size() > 1) MenuBar();
  }

  std::string Differences;

 private:
  using Record = ObjectRecord;

  const Record* Find(const std::string& name) {
    const Record* const found = program_.Object(name);
    if (found == nullptr) Differences += name + " is not there\n";
    return found;
  }
  void Number(const Record& object, Word word, std::int64_t wanted) {
    Say(object, word, object.Number(word) == wanted, std::to_string(object.Number(word)),
        std::to_string(wanted));
  }
  void Text(const Record& object, Word word, std::string_view wanted) {
    Say(object, word, object.Text(word) == wanted, std::string(object.Text(word)),
        std::string(wanted));
  }
  void Say(const Record& object, Word word, bool same, const std::string& is,
           const std::string& wanted) {
    if (same) return;
    Differences += object.FullName() + "." + std::string(object.Info().Find(word)->Facts.Name) +
                   " is " + is + ", not " + wanted + "\n";
  }
  void Hooked(const Record& object, const OwnerCode& code, Event event, bool blank_counts) {
    const std::string_view text = code.Of(event);
    const bool wanted = blank_counts ? !text.empty() : !IsBlank(text);
    const MemberInfo* const member = object.Info().Find(InfoOf(event).Name);
    if (member == nullptr || member->Facts.Kind != basic::MemberKind::Event) return;
    if (object.IsHooked(member->Name) == wanted) return;
    Differences += object.FullName() + "." + std::string(member->Facts.Name) +
                   (wanted ? " has no handler\n" : " has a handler\n");
  }

  void Form(int number) {
    const FormRec& record = *tables_.Form(number);
    DesignForm& user = *tables_.User(number);
    const Record* const form = Find(record.Name);
    if (form == nullptr) return;
    Number(*form, Word::Width, record.Width);
    Number(*form, Word::Height, record.Height);
    Number(*form, Word::BorderStyle, record.BorderStyle);
    Text(*form, Word::Caption, user.Caption);
    Number(*form, Word::Color, user.BackColor);
    Number(*form, Word::Cursor, -record.Cursor);
    Text(*form, Word::Hint, record.Hint);
    Number(*form, Word::ShowHint, 1);
    Number(*form, Word::WindowState, record.WndState);
    Number(*form, Word::Visible, number == 1 ? 1 : 0);
    if (record.Center == 0) {
      Number(*form, Word::Left, record.Left);
      Number(*form, Word::Top, record.Top);
    } else if (!form->As<FormState>()->Centered) {
      Differences += record.Name + " is not centred\n";
    }
    const OwnerCode code(tables_.EventTable.OwnerOf(user.KeyPrefix()));
    for (const Event event : ListOf(EventListId::Form).Events) Hooked(*form, code, event, true);
    std::int64_t radio = -1;
    for (const ControlRef& control : user.Controls()) {
      if (control->Visible) Object(*form, record, user, *control, radio);
    }
  }

  void Object(const Record& form, const FormRec& owner, DesignForm& user,
              const DesignControl& control, std::int64_t& radio) {
    static const ObjectRec kNone;
    const Kind kind = control.Id;
    if (static_cast<std::size_t>(kind) >= kObjectKindCount) return;
    const Record* const object = Find(control.Tag);
    if (object == nullptr) return;
    const auto* const records = owner.Objects(kind);
    const ObjectRec* const record = records == nullptr ? &kNone : records->At(control.Index);
    ASSERT_NE(record, nullptr);
    if (object->Info().Has(ClassFlag::Widget)) Drawn(form, *object, control, *record);
    Kinds(*object, owner, user, control, *record, radio);
    const OwnerCode code =
        OwnerCode(tables_.EventTable.OwnerOf(user.KeyPrefix() + "." + control.ArrayAndIndex()));
    for (const Event event : ListOf(InfoOf(kind).Events).Events) {
      const bool whole = kind == Kind::Time || kind == Kind::PopUpMenu;
      Hooked(*object, code, event, whole);
    }
  }

  void Drawn(const Record& form, const Record& object, const DesignControl& control,
             const ObjectRec& record) {
    if (object.Parent != form.Id) Differences += object.FullName() + " stands elsewhere\n";
    // A label that is shown has the size of its text.
    const bool fits = control.Id == Kind::Label && control.AutoSize && object.Realised;
    Number(object, Word::Left, Pixels(control.Left));
    Number(object, Word::Top, Pixels(control.Top));
    if (!fits) Number(object, Word::Width, Pixels(control.Width));
    if (!fits) Number(object, Word::Height, Pixels(control.Height));
    Text(object, Word::Hint, control.ToolTipText);
    Number(object, Word::ShowHint, 1);
    Number(object, Word::Enabled, record.Enabled);
    Number(object, Word::Visible, record.Visible);
    if (control.Has(Member::Caption)) Text(object, Word::Caption, control.Caption);
    if (control.Has(Member::Text)) Text(object, Word::Text, control.Text);
    const bool colored = object.Has(Word::Color) && control.Has(Member::BackColor) &&
                         control.Id != Kind::CheckBox && control.Id != Kind::OptionButton &&
                         control.Id != Kind::ComboBox && control.Id != Kind::Image;
    if (colored) Number(object, Word::Color, control.BackColor);
    if (control.Has(Member::FontName)) Font(object, control, record);
  }

  void Font(const Record& object, const DesignControl& control, const ObjectRec& record) {
    const FontValues font = program_.World->FontOf(object);
    FontValues wanted = font;
    wanted.Name = control.FontName;
    wanted.Size = std::llrint(static_cast<double>(control.FontSize));
    wanted.Bold = control.FontBold;
    wanted.Italic = control.FontItalic;
    wanted.Color = control.Has(Member::ForeColor) ? control.ForeColor : record.FontColor;
    if (font == wanted) return;
    Differences += object.FullName() + " has another font: " + font.Name + " " +
                   std::to_string(font.Size) + " color " + std::to_string(font.Color) + ", not " +
                   wanted.Name + " " + std::to_string(wanted.Size) + " color " +
                   std::to_string(wanted.Color) + "\n";
  }

  void Items(const Record& list, std::vector<std::string> wanted, bool sorted) {
    std::vector<std::string> items;
    for (const ListItems::Item& item : list.As<ListItems>()->Items) items.push_back(item.Text);
    if (sorted) {
      std::stable_sort(wanted.begin(), wanted.end(),
                       [](const auto& a, const auto& b) { return Lower(a) < Lower(b); });
    }
    if (items != wanted) {
      Differences += list.FullName() + " has the entries " + Join(items, "|") + ", not " +
                     Join(wanted, "|") + "\n";
    }
  }

  void Kinds(const Record& object, const FormRec& owner, DesignForm& user,
             const DesignControl& control, const ObjectRec& record, std::int64_t& radio) {
    switch (control.Id) {
      case Kind::Button:
        Number(object, Word::TabOrder, record.TabOrder);
        Number(object, Word::Cursor, -record.Cursor);
        return Number(object, Word::Layout, 2);
      case Kind::TextBox:
        Number(object, Word::TabOrder, record.TabOrder);
        return Number(object, Word::ReadOnly, record.ReadOnly);
      case Kind::RichTextBox:
        Number(object, Word::WordWrap, record.Icon);
        Number(object, Word::ScrollBars, record.ScrollBars);
        return Number(object, Word::HideScrollBars, record.HideScrollBars);
      case Kind::Label:
        Number(object, Word::WordWrap, record.Icon);
        Number(object, Word::AutoSize, control.AutoSize ? 1 : 0);
        return Number(object, Word::Transparent, control.BackStyle == 0 ? 1 : 0);
      case Kind::ListBox:
        Number(object, Word::Columns, record.Columns);
        Number(object, Word::MultiSelect, record.MultiSelect);
        Number(object, Word::Sorted, record.Sorted);
        return Items(object, control.Items.size() >= 2 ? control.Items : std::vector<std::string>(),
                     record.Sorted != 0);
      case Kind::ComboBox: {
        std::vector<std::string> rows;
        for (const std::string_view row : Split(record.Items, "\x95")) rows.emplace_back(row);
        rows.pop_back();  // each row has its end
        return Items(object, rows, record.Sorted != 0);
      }
      case Kind::Image:
        return Number(object, Word::Stretch, control.Stretch ? 1 : 0);
      case Kind::CheckBox:
        return Number(object, Word::Checked, record.Checked);
      case Kind::OptionButton:
        return Radio(object, owner, user, control, record, radio);
      case Kind::Time:
        Number(object, Word::Enabled, record.Enabled);
        return Number(object, Word::Interval, record.Interval);
      case Kind::OpenDialog:
        Text(object, Word::Caption, record.Title);
        Text(object, Word::Filter, record.Filter);
        Text(object, Word::InitialDir, record.InitialDir);
        return Text(object, Word::FileName, record.FileName);
      case Kind::PopUpMenu:
        return PopUp(object, owner, control.Index);
      default:
        return;
    }
  }

  /// Of the buttons of a form the last one that is set is on.
  void Radio(const Record& object, const FormRec& owner, DesignForm& user,
             const DesignControl& control, const ObjectRec& record, std::int64_t& last) {
    if (last < 0) {
      last = 0;
      for (const ControlRef& other : user.Controls()) {
        if (other->Id != Kind::OptionButton || !other->Visible) continue;
        if (owner.OptionButtons.At(other->Index)->Checked != 0) last = other->Index;
      }
    }
    (void)record;
    Number(object, Word::Checked, control.Index == last ? 1 : 0);
  }

  void Row(ObjectId menu, std::size_t at, const std::string& name, std::string_view caption) {
    const Record* const row = Find(name);
    const Record* const above = program_.World->Find(menu);
    if (row == nullptr || above == nullptr) return;
    const std::vector<ObjectId>& rows = above->As<MenuRows>()->Rows;
    if (at >= rows.size() || rows[at] != row->Id) {
      Differences += name + " is not row " + std::to_string(at) + " of " + above->FullName() + "\n";
    }
    Text(*row, Word::Caption, caption);
  }

  void PopUp(const Record& menu, const FormRec& owner, int number) {
    const PopUpItemRec& record = *owner.PopUps.At(number);
    Number(menu, Word::Alignment, record.Alignment);
    Number(menu, Word::AutoPopup, record.AutoPopUp);
    std::size_t at = 0;
    for (const PopUpMenuRec& item : tables_.PopUpMenus.At(number)->Items) {
      if (item.Name.empty()) continue;
      Row(menu.Id, at++, item.Name, item.Caption);
      std::size_t below = 0;
      for (const PopUpEntryRec& entry : item.Entries) {
        if (!entry.Name.empty()) Row(program_.Id(item.Name), below++, entry.Name, entry.Text);
      }
    }
  }

  void MenuBar() {
    const Record* const bar = Find("MenuBar");
    if (bar == nullptr) return;
    for (std::size_t title = 1; title < tables_.MenuTitles.size(); ++title) {
      const MenuBarRec& record = tables_.MenuTitles[title];
      Row(bar->Id, title - 1, record.Name, record.Caption);
      std::size_t at = 0;
      for (const MenuItemRec& item : tables_.MenuItems) {
        if (item.Name.empty() || static_cast<std::size_t>(item.Parent) != title) continue;
        Row(program_.Id(record.Name), at++, item.Name, WithoutMenuDepth(item.Caption));
      }
    }
  }

  ProjectTables& tables_;
  ObjectProgram& program_;
};

TEST(GeneratedProjects, RunWithTheValuesOfTheirProject) {
  const auto includes = Includes();
  for (std::uint32_t seed = 0; seed < Count(); ++seed) {
    test::ProjectBuilder project;
    test::RunnableProject(seed).Fill(project);
    GeneratorState state;
    const std::string source = GenerateSource(project.Tables, state);
    ObjectProgram program(source, includes);
    if (const char* const file = std::getenv("TARNWICK_KEEP_SOURCE")) {
      std::ofstream(file, std::ios::binary) << source;
    }
    program.Run();
    ASSERT_EQ(program.Result.Text, "") << "seed " << seed;
    ASSERT_NE(program.World, nullptr) << "seed " << seed << "\n" << program.Faults;
    Comparison comparison(project.Tables, program);
    comparison.All();
    ASSERT_EQ(comparison.Differences, "") << "seed " << seed;
  }
}

/// Values that no program can set, code that is none: messages, and no harm.
TEST(GeneratedProjects, AnyProjectEndsWithMessagesAtMost) {
  const auto includes = Includes();
  std::uint32_t started = 0;
  for (std::uint32_t seed = 0; seed < Count(); ++seed) {
    test::ProjectBuilder project;
    const test::RandomProjectShape shape{
        .Forms = 1, .ObjectsPerForm = 6, .Holdable = seed % 2 == 0};
    test::RandomProject(seed).Fill(project, shape);
    GeneratorState state;
    ObjectProgram program(GenerateSource(project.Tables, state), includes);
    program.Run();
    if (program.World != nullptr) ++started;
    EXPECT_TRUE(program.World != nullptr || !program.Faults.empty()) << "seed " << seed;
  }
  EXPECT_LT(started, Count()) << "such projects have faults";
}

}  // namespace
}  // namespace tarnwick::objects
