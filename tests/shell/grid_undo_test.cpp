// Undo of edits in the property grid over the whole main window.
#include <vector>

#include "../designer/history/project_text.h"
#include "delivered_files.h"
#include "designer/history/history.h"
#include "shell_fixture.h"

namespace tarnwick {
namespace {

class GridUndo : public ShellTest {
 protected:
  void SetUp() override {
    PutDeliveredFiles(ports.Files, std::string(kProgram));
    Start();
    Place(0, 10, 10);
  }
  PropertySheet& sheet() { return main.Sheet(); }
  int RowOf(std::string_view name) {
    for (int row = 0; row < sheet().RowCount(); ++row) {
      if (sheet().Label(row) == name) return row;
    }
    ADD_FAILURE() << "no row " << name;
    return -1;
  }
  void Type(std::string_view row, std::string_view text) {
    sheet().SelectRow(RowOf(row));
    EXPECT_TRUE(sheet().ApplyText(text));
  }
  std::vector<std::string> HeadRows() {
    std::vector<std::string> rows;
    for (const ObjectCombo::Row& row : sheet().Combo().Rows()) rows.push_back(row.Text);
    return rows;
  }
};

TEST_F(GridUndo, UndoTakesBackTheRowAndTheGridShowsIt) {
  Type("Caption", "Go");
  sheet().LeaveRow();
  Type("Width", "120");
  sheet().LeaveRow();
  EXPECT_EQ(main.Commands().Caption(Command::Undo), "&Undo Edit Width of Form1Btn1");
  main.Undo();
  EXPECT_EQ(sheet().Text(RowOf("Width")), "75");
  EXPECT_EQ(sheet().Text(RowOf("Caption")), "Go");
  EXPECT_EQ(main.Commands().Caption(Command::Undo), "&Undo Edit Caption of Form1Btn1");
  main.Undo();
  EXPECT_EQ(sheet().Text(RowOf("Caption")), "Form1Btn1");
  EXPECT_EQ(main.Commands().Caption(Command::Undo), "&Undo Place Form1Btn1");
  main.Redo();
  EXPECT_EQ(sheet().Text(RowOf("Caption")), "Go");
}

TEST_F(GridUndo, UndoWhileARowIsTypedInTakesTheRowBack) {
  Type("Caption", "Half");
  main.Undo();
  EXPECT_EQ(tables().User(1)->ControlSel->Caption, "Form1Btn1");
  EXPECT_EQ(sheet().Text(RowOf("Caption")), "Form1Btn1");
}

TEST_F(GridUndo, ARenameTakenBackIsInHeadListAndEventsBar) {
  tables().EventTable.Replace("Form1.Button1.OnClick", "Beep");
  {
    const HistoryStep step(main.Steps(), 1, "Code");
    main.Bar().PopBoockMarck(1, "Button1");
  }
  Type("Name", "Start");
  sheet().LeaveRow();
  EXPECT_EQ(HeadRows(), (std::vector<std::string>{"Form1   (Form)", "Start   (Button)"}));
  EXPECT_EQ(main.Bar().btncodigo(1).at(0).Tip, "Start");
  main.Undo();
  EXPECT_EQ(HeadRows(), (std::vector<std::string>{"Form1   (Form)", "Form1Btn1   (Button)"}));
  EXPECT_EQ(sheet().Combo().Selected(), 1);
  EXPECT_EQ(sheet().Text(0), "Form1Btn1");
  EXPECT_EQ(main.Bar().btncodigo(1).at(0).Tip, "Form1Btn1");
}

TEST_F(GridUndo, ARenamedFormTakenBackIsInFormListBarAndHeadList) {
  surface().SelectForm();
  const std::string title = main.Bar().Caption(1);
  Type("Name", "Main");
  sheet().LeaveRow();
  EXPECT_EQ(main.Bar().Caption(1), "Main  Procedures");
  EXPECT_EQ(Lines(), std::vector<std::string>{"Main ()"});
  main.Undo();
  EXPECT_EQ(Lines(), std::vector<std::string>{"Form1 ()"});
  EXPECT_EQ(main.Bar().Caption(1), title);
  EXPECT_EQ(HeadRows().front(), "Form1   (Form)");
  EXPECT_EQ(sheet().Text(0), "Form1");
}

TEST_F(GridUndo, TheFormOfTheRowComesUpWithItsRows) {
  Type("Caption", "Go");
  sheet().LeaveRow();
  main.Commands().Run(Command::AddNewForm);
  main.Undo();
  main.Commands().Run(Command::AddNewForm);
  main.Forms().SelectLine(0);
  Type("Hint", "Press");
  main.Forms().SelectLine(1);
  EXPECT_EQ(main.Commands().Caption(Command::Undo), "&Undo Edit Hint of Form1Btn1");
  main.Undo();
  EXPECT_EQ(tables().CurrentForm, tables().User(1));
  EXPECT_EQ(sheet().SelName(), "Form1Btn1");
  EXPECT_EQ(sheet().Text(RowOf("Hint")), "");
}

TEST_F(GridUndo, ASaveInTheMidstOfARowLeavesItOneStep) {
  Type("Caption", "G");
  SaveUnder("Z:\\a\\p.tnp", {"Z:\\a\\f.ftn"});
  EXPECT_TRUE(sheet().ApplyText("Go"));
  sheet().LeaveRow();
  main.Undo();
  EXPECT_EQ(tables().User(1)->ControlSel->Caption, "Form1Btn1");
  EXPECT_EQ(tables().Form(1)->FileName, "Z:\\a\\f.ftn");
}

TEST_F(GridUndo, AnObjectThatComesBackTakesEditsOfItsRowsAgain) {
  main.Commands().Run(Command::Delete);
  main.Undo();
  Type("Caption", "Back");
  sheet().LeaveRow();
  EXPECT_EQ(tables().User(1)->ControlSel->Caption, "Back");
  main.Undo();
  EXPECT_EQ(tables().User(1)->ControlSel->Caption, "Form1Btn1");
}

}  // namespace
}  // namespace tarnwick
