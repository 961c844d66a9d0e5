// Objects keep their own values and code through deletion, save, reading and generating.
#include <map>
#include <random>

#include "codegen/generator_state.h"
#include "codegen/program_source.h"
#include "shell_fixture.h"

namespace tarnwick {
namespace {

/// The kinds with a record, code and a tab order of their own, by tool.
constexpr int kTools[] = {0, 1, 3, 4, 5, 6, 7, 2};

class SettledForm : public ShellTest, public ::testing::WithParamInterface<unsigned> {
 protected:
  /// What belongs to one object.
  struct Own {
    std::int16_t Cursor = 0;
    std::string Hint;
    std::string Code;
    friend bool operator==(const Own&, const Own&) = default;
  };

  DesignForm& Form() { return *tables().User(1); }
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  std::vector<ControlRef> Objects() {
    std::vector<ControlRef> objects;
    for (const ControlRef& control : Form().Controls()) {
      if (control->Index > 0 && static_cast<std::size_t>(control->Id) < kObjectKindCount) {
        objects.push_back(control);
      }
    }
    return objects;
  }
  void PlaceOne() {
    Place(kTools[Below(static_cast<int>(std::size(kTools)))], 10 + Below(300), 10 + Below(250));
    // The press may have taken hold of an object that lay there before.
    const ControlRef object = Form().Controls().back();
    object->Tag = "Name" + std::to_string(++made_);
    object->ToolTipText = "hint" + std::to_string(made_);
    ObjectRec& record = *tables().Form(1)->Objects(object->Id)->At(object->Index);
    record.Enabled = static_cast<std::int16_t>(made_ % 2);
    tables().EventTable.Replace("Form1." + object->ArrayAndIndex() + CodeEvent(*object),
                                "Value" + std::to_string(made_) + " = 1");
  }
  static std::string CodeEvent(const DesignControl& object) {
    const EventList& events = ListOf(InfoOf(object.Id).Events);
    return std::string(InfoOf(events.Events.front()).Suffix);
  }
  void DeleteOne() {
    const std::vector<ControlRef> objects = Objects();
    if (objects.empty()) return;
    surface().SelectObject(
        objects[static_cast<std::size_t>(Below(static_cast<int>(objects.size())))]);
    main.Commands().Run(Command::Delete);
  }
  std::map<std::string, Own> Owned() {
    std::map<std::string, Own> owned;
    for (const ControlRef& object : Objects()) {
      const ObjectRec* record =
          std::as_const(*tables().Form(1)).Objects(object->Id)->At(object->Index);
      const std::string* code =
          tables().EventTable.Find("Form1." + object->ArrayAndIndex() + CodeEvent(*object));
      owned[object->Tag] = {record != nullptr ? record->Enabled : std::int16_t{-1},
                            object->ToolTipText, code != nullptr ? *code : "(none)"};
    }
    return owned;
  }

  std::mt19937 random_{GetParam()};
  int made_ = 0;
};

TEST_P(SettledForm, EveryObjectKeepsItsOwnValuesAndCode) {
  Start();
  for (int i = 0; i < 60; ++i) {
    if (Objects().size() < 4 || Below(3) != 0) {
      PlaceOne();
    } else {
      DeleteOne();
    }
    for (const auto& [name, own] : Owned()) {
      ASSERT_EQ(own.Hint, "hint" + name.substr(4)) << "seed " << GetParam();
      ASSERT_EQ(own.Code, "Value" + name.substr(4) + " = 1") << name << ", seed " << GetParam();
    }
  }
  const std::map<std::string, Own> before = Owned();

  GeneratorState state;
  const std::string program = GenerateSource(tables(), state);
  for (const auto& [name, own] : before) {
    const std::size_t sub = program.find("\nSub " + name + "_");
    ASSERT_NE(sub, std::string::npos) << name << ", seed " << GetParam();
    const std::size_t code = program.find(own.Code, sub);
    const std::size_t end = program.find("End Sub", sub);
    EXPECT_LT(code, end) << name << " has another's code, seed " << GetParam();
  }

  SaveUnder("Z:\\a\\p.tnp", {"Z:\\a\\f.ftn"});
  ports.Dialogs.OpenAnswers = {"Z:\\a\\p.tnp"};
  main.Commands().Run(Command::Open);
  EXPECT_EQ(Owned(), before) << "seed " << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Seeds, SettledForm, ::testing::Range(1U, 21U));

}  // namespace
}  // namespace tarnwick
