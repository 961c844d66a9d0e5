// Placing and selecting objects with the mouse.
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include "program.h"
#include "qt/surface/container.h"

namespace tarnwick {
namespace {

constexpr QPoint kPlace{43, 67};

/// What stands in the panel's head list and first row.
void ExpectPanelShows(Program& program, std::string_view name) {
  EXPECT_TRUE(program.Find<QComboBox>(QStringLiteral("Combo"))
                  .currentText()
                  .toStdString()
                  .starts_with(std::string(name) + "  "))
      << program.Find<QComboBox>(QStringLiteral("Combo")).currentText().toStdString();
  EXPECT_EQ(program.Find<QLineEdit>(QStringLiteral("Text_0")).text().toStdString(), name);
}

void ExpectHandlesAround(Program& program, const DesignControl& control) {
  const auto place = [&](int handle) {
    const ControlRef grip = program.Form().Element(Kind::Handle, handle);
    EXPECT_TRUE(grip->Visible) << handle;
    return grip;
  };
  // The handles are centred on the border, half a pixel inwards.
  const float half = 105.0F / 2;
  EXPECT_NEAR(place(0)->Left + half, control.Left, 16);
  EXPECT_NEAR(place(0)->Top + half, control.Top, 16);
  EXPECT_NEAR(place(4)->Left + half, control.Left + control.Width, 16);
  EXPECT_NEAR(place(4)->Top + half, control.Top + control.Height, 16);
}

bool HandlesShown(Program& program) {
  return program.Form().Element(Kind::Handle, 0)->Visible;
}

class EveryKind : public testing::TestWithParam<PlacedKind> {
 protected:
  void ExpectPlaced(Program& program) {
    const PlacedKind& kind = GetParam();
    DesignControl* object = program.Selected();
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(object->Id, kind.Id);
    EXPECT_EQ(object->Index, 1);
    EXPECT_EQ(object->Tag, kind.Name);
    EXPECT_EQ(program.Form().NameObjet, kind.Objet);
    EXPECT_EQ(program.Form().IndexObjet, 1);
    EXPECT_EQ(RectOf(*object), (PixelRect{43, 67, kind.Width, kind.Height}));
    EXPECT_TRUE(object->Visible);
    ExpectHandlesAround(program, *object);
    ExpectPanelShows(program, kind.Name);
    // One press places one object: the tool is up again, the arrow down.
    EXPECT_EQ(program.Form().Objeto, "");
    const auto button = QStringLiteral("BtnObjet_%1").arg(kind.Tool);
    EXPECT_FALSE(program.Find<QToolButton>(button).isChecked());
    EXPECT_TRUE(program.Find<QToolButton>(QStringLiteral("BtnObjet_17")).isChecked());
    EXPECT_FALSE(program.Action(QStringLiteral("mnuItemObj_%1").arg(kind.Tool)).isChecked());
  }
};

TEST_P(EveryKind, IsPlacedByItsButtonAndOnePress) {
  Program program;
  program.PressTool(GetParam().Tool);
  const QString number = QString::number(GetParam().Tool);
  EXPECT_TRUE(program.Find<QToolButton>("BtnObjet_" + number).isChecked());
  EXPECT_TRUE(program.Find<QToolButton>("ObjectBarBtn_" + number).isChecked());
  EXPECT_TRUE(program.Action("mnuItemObj_" + number).isChecked());
  EXPECT_FALSE(program.Find<QToolButton>(QStringLiteral("BtnObjet_17")).isChecked());
  program.Click(program.Surface(), kPlace);
  ExpectPlaced(program);
}

TEST_P(EveryKind, IsPlacedFromTheFloatingBox) {
  Program program;
  program.Key(Qt::Key_B, Qt::ControlModifier);
  auto& box = program.Find<QWidget>(QStringLiteral("ObjectBar"));
  ASSERT_TRUE(box.isVisible());
  program.Click(program.Find<QToolButton>(QStringLiteral("ObjectBarBtn_%1").arg(GetParam().Tool)));
  program.Click(program.Surface(), kPlace);
  ExpectPlaced(program);
}

TEST_P(EveryKind, IsPlacedFromTheMenu) {
  Program program;
  program.Choose(QStringLiteral("mnuItemObj_%1").arg(GetParam().Tool));
  program.Click(program.Surface(), kPlace);
  ExpectPlaced(program);
}

TEST_P(EveryKind, IsSelectedByAPressAndStaysWhereItIs) {
  Program program;
  const DesignControl* object = program.Place(GetParam().Tool, kPlace);
  ASSERT_NE(object, nullptr);
  program.Click(program.Surface(), {300, 250});
  EXPECT_EQ(program.Form().NameObjet, "Form");
  EXPECT_EQ(program.Selected(), nullptr);
  EXPECT_FALSE(HandlesShown(program));
  ExpectPanelShows(program, "Form1");
  const PixelRect before = RectOf(*object);
  program.Click(program.Surface(), kPlace + QPoint(9, 9));
  EXPECT_EQ(program.Selected(), object);
  EXPECT_EQ(program.Form().NameObjet, GetParam().Objet);
  EXPECT_EQ(RectOf(*object), before);
  ExpectHandlesAround(program, *object);
  ExpectPanelShows(program, GetParam().Name);
}

INSTANTIATE_TEST_SUITE_P(Placing, EveryKind, testing::ValuesIn(PlacedKinds()),
                         [](const auto& test) { return std::string(InfoOf(test.param.Id).Name); });

TEST(Placing, OneToolPlacesOneObjectWhateverThePresses) {
  Program program;
  program.Place(0, {20, 20});
  program.Click(program.Surface(), {200, 200});
  EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
  EXPECT_EQ(program.Form().NameObjet, "Form");
}

TEST(Placing, NumbersCountWithinTheKind) {
  Program program;
  EXPECT_EQ(program.Place(0, {20, 20})->Tag, "Form1Btn1");
  EXPECT_EQ(program.Place(0, {20, 80})->Tag, "Form1Btn2");
  EXPECT_EQ(program.Place(3, {20, 140})->Tag, "Form1Label1");
}

TEST(Placing, CaptionTextAndRowsShowTheName) {
  Program program;
  EXPECT_EQ(program.Place(3, {20, 20})->Caption, "Form1Label1");
  EXPECT_EQ(program.Place(1, {20, 60})->Text, "Form1Text1");
  EXPECT_EQ(program.Place(4, {20, 100})->Items, std::vector<std::string>{"Form1List1"});
}

TEST(Placing, ThePressNeedNotBeReleasedAtOnce) {
  Program program;
  program.PressTool(0);
  program.Press(program.Surface(), {30, 30});
  program.Move(program.Surface(), {60, 45});
  program.Move(program.Surface(), {90, 70});
  program.Release(program.Surface(), {90, 70});
  Program::Settle();
  // The new object hangs on the mouse until the release.
  EXPECT_EQ(RectOf(*program.Selected()), (PixelRect{90, 70, 75, 25}));
}

TEST(Placing, OnAnImageTheObjectIsPlacedAndTheImageIsDragged) {
  Program program;
  const DesignControl* image = program.Place(2, {20, 20});
  program.PressTool(0);
  program.Drag(program.Surface(), {50, 50}, {70, 80});
  ASSERT_EQ(program.Form().UBound(Kind::Button), 1);
  EXPECT_EQ(RectOf(*program.Form().Element(Kind::Button, 1)), (PixelRect{50, 50, 75, 25}));
  // What lay there before is what the gesture moves, and the selection afterwards.
  EXPECT_EQ(program.Selected(), image);
  EXPECT_EQ(RectOf(*image), (PixelRect{40, 50, 105, 105}));
}

TEST(Placing, OnAnObjectWithItsOwnWindowThePressSelectsAndTheToolStaysDown) {
  Program program;
  const DesignControl* list = program.Place(4, {20, 20});
  program.PressTool(0);
  program.Click(program.Surface(), {40, 40});
  EXPECT_EQ(program.Form().UBound(Kind::Button), 0);
  EXPECT_EQ(program.Selected(), list);
  EXPECT_TRUE(program.Find<QToolButton>(QStringLiteral("BtnObjet_0")).isChecked());
}

TEST(Placing, TheSecondTransparentFrameCannotBeArmed) {
  Program program;
  program.Place(15, {20, 20});
  EXPECT_FALSE(program.Find<QToolButton>(QStringLiteral("BtnObjet_15")).isEnabled());
  EXPECT_FALSE(program.Find<QToolButton>(QStringLiteral("ObjectBarBtn_15")).isEnabled());
  EXPECT_FALSE(program.Action(QStringLiteral("mnuItemObj_15")).isEnabled());
  program.PressTool(15);
  EXPECT_NE(program.Form().Objeto, "TransparentFrame");
  // Another form has its own.
  program.Key(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(program.Find<QToolButton>(QStringLiteral("BtnObjet_15")).isEnabled());
}

TEST(Placing, EscapeGoesBackToTheArrow) {
  Program program;
  program.PressTool(0);
  program.Key(Qt::Key_Escape);
  EXPECT_TRUE(program.Find<QToolButton>(QStringLiteral("BtnObjet_17")).isChecked());
  program.Click(program.Surface(), kPlace);
  EXPECT_EQ(program.Form().UBound(Kind::Button), 0);
}

TEST(Placing, TheFormToolAddsAForm) {
  Program program;
  program.PressTool(9);
  EXPECT_EQ(program.Tables().FormsCount, 2);
  EXPECT_EQ(program.Form().Number(), 2);
  EXPECT_TRUE(program.Surface(2).isVisible());
  EXPECT_EQ(program.Place(0, {20, 20})->Tag, "Form2Btn1");
}

TEST(Placing, AToolPressedWithoutAFormAddsOneFirst) {
  Program program;
  program.User.Yes();
  program.Choose(QStringLiteral("mnuRemove"));
  ASSERT_EQ(program.Tables().CurrentForm, nullptr);
  program.PressTool(0);
  ASSERT_NE(program.Tables().CurrentForm, nullptr);
  EXPECT_EQ(program.Form().Objeto, "Button");
  program.Click(program.Surface(), kPlace);
  EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
}

TEST(Placing, ARightPressWithAnArmedToolPlacesToo) {
  Program program;
  program.PressTool(0);
  program.Click(program.Surface(), kPlace, Qt::RightButton);
  EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
}

TEST(Selecting, TheObjectListSelectsWithHandles) {
  Program program;
  program.Place(0, {20, 20});
  program.Place(3, {20, 80});
  auto& list = program.Find<QComboBox>(QStringLiteral("Combo"));
  const int row = list.findText(QStringLiteral("Form1Btn1   (Button)"));
  ASSERT_GE(row, 0);
  list.setFocus();
  while (list.currentIndex() != row) {
    const int before = list.currentIndex();
    program.Key(before < row ? Qt::Key_Down : Qt::Key_Up);
    ASSERT_NE(list.currentIndex(), before);
  }
  ASSERT_NE(program.Selected(), nullptr);
  EXPECT_EQ(program.Selected()->Tag, "Form1Btn1");
  ExpectHandlesAround(program, *program.Selected());
  ExpectPanelShows(program, "Form1Btn1");
}

TEST(Selecting, TheObjectListIsPressedWithTheMouse) {
  Program program;
  program.Place(0, {20, 20});
  program.Click(program.Surface(), {300, 200});
  auto& list = program.Find<QComboBox>(QStringLiteral("Combo"));
  program.Click(list);
  QAbstractItemView* rows = list.view();
  ASSERT_TRUE(rows->isVisible());
  const QModelIndex row =
      list.model()->index(list.findText(QStringLiteral("Form1Btn1   (Button)")), 0);
  // A list that has just opened takes a release as the end of the press that opened it.
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  program.Click(*rows->viewport(), rows->visualRect(row).center());
  ASSERT_NE(program.Selected(), nullptr);
  EXPECT_EQ(program.Selected()->Tag, "Form1Btn1");
}

TEST(Selecting, TheFormStandsInTheObjectListToo) {
  Program program;
  program.Place(0, {20, 20});
  auto& list = program.Find<QComboBox>(QStringLiteral("Combo"));
  EXPECT_EQ(list.count(), 2);
  EXPECT_GE(list.findText(QStringLiteral("Form1   (Form)")), 0);
}

TEST(Selecting, TabWalksTheObjectsBothWays) {
  Program program;
  program.Place(0, {20, 20});
  program.Place(3, {20, 80});
  program.Place(6, {20, 140});
  program.Key(Qt::Key_Tab);
  const std::string after_last = program.Form().NameObjet;
  program.Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(program.Form().NameObjet, "CheckBox1");
  program.Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(program.Form().NameObjet, "Label1");
  program.Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(program.Form().NameObjet, "Button1");
  program.Key(Qt::Key_Tab);
  EXPECT_EQ(program.Form().NameObjet, "Label1");
  ExpectPanelShows(program, "Form1Label1");
  ExpectHandlesAround(program, *program.Selected());
  EXPECT_NE(after_last, "CheckBox1");
}

TEST(Selecting, AFormBehindComesForwardWithTheSamePress) {
  Program program;
  program.Place(0, {200, 250});
  program.PressTool(9);
  // The second window stands one step right and below; the right edge of the first is free.
  program.Click(program.Surface(1), {5, 5});
  EXPECT_EQ(program.Form().Number(), 1);
  EXPECT_EQ(program.Find<QListWidget>(QStringLiteral("ListaFrms")).currentRow(), 0);
  ExpectPanelShows(program, "Form1");
}

TEST(Selecting, TheFormWithTheFocusIsTheCurrentOne) {
  Program program;
  program.Place(0, {20, 20});
  program.PressTool(9);
  ASSERT_EQ(program.Form().Number(), 2);
  // The focus may come without a press: when the window that had it is hidden.
  program.Surface(1).setFocus();
  Program::Settle();
  EXPECT_EQ(program.Form().Number(), 1);
  program.Key(Qt::Key_Tab);
  ASSERT_NE(program.Selected(), nullptr);
  ExpectPanelShows(program, "Form1Btn1");
}

TEST(Selecting, ARolledUpFormLeavesNoKeysToAnotherAndItsLineBringsItBack) {
  Program program;
  program.Place(0, {20, 20});
  program.PressTool(9);
  QWidget* window = program.Surface(2).parentWidget();
  // The third button from the right rolls the window up to its title.
  program.Click(*window, {window->width() - 70, 14});
  ASSERT_FALSE(program.Surface(2).isVisible());
  // A Tab that reached the first form would select its button.
  program.Key(Qt::Key_Tab);
  EXPECT_EQ(program.Tables().User(1)->NameObjet, "Form");
  EXPECT_FALSE(program.Surface(1).hasFocus());
  auto& list = program.Find<QListWidget>(QStringLiteral("ListaFrms"));
  program.Click(*list.viewport(), list.visualItemRect(list.item(1)).center());
  EXPECT_EQ(program.Form().Number(), 2);
  EXPECT_TRUE(program.Surface(2).isVisible());
}

TEST(Selecting, TheFormListBringsItsFormUp) {
  Program program;
  program.PressTool(9);
  auto& list = program.Find<QListWidget>(QStringLiteral("ListaFrms"));
  ASSERT_EQ(list.count(), 2);
  program.Click(*list.viewport(), list.visualItemRect(list.item(0)).center());
  EXPECT_EQ(program.Form().Number(), 1);
  program.Click(*list.viewport(), list.visualItemRect(list.item(1)).center());
  EXPECT_EQ(program.Form().Number(), 2);
  ExpectPanelShows(program, "Form2");
}

TEST(Selecting, TheRightButtonSelectsAndOpensThePopUp) {
  Program program;
  const DesignControl* button = program.Place(0, {20, 20});
  program.Click(program.Surface(), {300, 200});
  program.Click(program.Surface(), {40, 30}, Qt::RightButton);
  EXPECT_EQ(program.Selected(), button);
  auto& menu = program.Find<QMenu>(QStringLiteral("ObjectPopUp"));
  EXPECT_TRUE(menu.isVisible());
  EXPECT_TRUE(program.Action(QStringLiteral("popPropiedades")).isChecked());
  program.Key(Qt::Key_Escape);
  EXPECT_FALSE(menu.isVisible());
  // The gesture is over: the pointer moves nothing.
  const PixelRect before = RectOf(*button);
  program.Move(program.Surface(), {200, 200});
  program.Click(program.Surface(), {300, 200});
  EXPECT_EQ(RectOf(*button), before);
}

struct PopUpStates {
  int Tool;
  bool Code;
  bool CopyPaste;
};
class PopUpOf : public testing::TestWithParam<PopUpStates> {};

TEST_P(PopUpOf, TheKindTurnsRowsOff) {
  Program program;
  program.Place(GetParam().Tool, {20, 20});
  program.Click(program.Surface(), {30, 30}, Qt::RightButton);
  EXPECT_EQ(program.Action(QStringLiteral("popCode")).isEnabled(), GetParam().Code);
  EXPECT_EQ(program.Action(QStringLiteral("popCopy")).isEnabled(), GetParam().CopyPaste);
  EXPECT_EQ(program.Action(QStringLiteral("popPaste")).isEnabled(), GetParam().CopyPaste);
  EXPECT_TRUE(program.Action(QStringLiteral("popCut")).isEnabled());
  EXPECT_TRUE(program.Action(QStringLiteral("popFrente")).isEnabled());
  program.Key(Qt::Key_Escape);
}

INSTANTIATE_TEST_SUITE_P(Selecting, PopUpOf,
                         testing::Values(PopUpStates{0, true, true}, PopUpStates{12, false, true},
                                         PopUpStates{13, false, true}, PopUpStates{14, false, true},
                                         PopUpStates{15, false, false},
                                         PopUpStates{16, false, true}, PopUpStates{18, false, true},
                                         PopUpStates{19, true, true}));

TEST(Selecting, OnTheEmptyFormThePopUpIsTheFormsOwn) {
  Program program;
  program.Place(0, {20, 20});
  program.Click(program.Surface(), {300, 200}, Qt::RightButton);
  EXPECT_EQ(program.Form().NameObjet, "Form");
  EXPECT_TRUE(program.Find<QMenu>(QStringLiteral("ObjectPopUp")).isVisible());
  EXPECT_FALSE(program.Action(QStringLiteral("popFrente")).isEnabled());
  EXPECT_FALSE(program.Action(QStringLiteral("popFondo")).isEnabled());
  program.Key(Qt::Key_Escape);
}

}  // namespace
}  // namespace tarnwick
