// Everything can be reached with the keyboard and has a name for those who hear it.
#include "reach.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTest>

#include <gtest/gtest.h>

#include "program.h"
#include "qt/editor/code_edit.h"

namespace tarnwick {
namespace {

class Reach : public ::testing::Test {
 protected:
  /// Sweeps the dialog that the step opens.
  template <class Step>
  void Sweep(Step&& open) {
    program.User.Do([this](QDialog& dialog) {
      EXPECT_EQ(Text(Nameless(dialog)), "") << dialog.windowTitle().toStdString();
      EXPECT_EQ(Text(Unreached(dialog)), "") << dialog.windowTitle().toStdString();
      EXPECT_EQ(Text(Tipless(dialog)), "") << dialog.windowTitle().toStdString();
      ++swept_;
      dialog.reject();
    });
    open();
    program.Settle();
  }
  int swept_ = 0;
  Program program;
};

TEST_F(Reach, EveryWidgetOfTheMainWindowHasAName) {
  program.Place(0, {20, 20});
  program.Place(4, {20, 80});
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  program.Choose(QStringLiteral("mnuObjectBar"));
  program.Settle();
  EXPECT_EQ(Text(Nameless(program.Window())), "");
}

TEST_F(Reach, EveryRowOfTheGridHasTheNameOfItsField) {
  for (const PlacedKind& kind : PlacedKinds()) {
    program.Place(kind.Tool, {20, 20});
    program.Settle();
    EXPECT_EQ(Text(Nameless(program.Window())), "") << kind.Name;
    program.Key(Qt::Key_Delete);
  }
}

TEST_F(Reach, EveryDialogNamesItsWidgets) {
  Sweep([this] { program.Choose(QStringLiteral("mnuAbout")); });
  Sweep([this] { program.Choose(QStringLiteral("mnuMain")); });
  Sweep([this] { program.Choose(QStringLiteral("mnuRestore")); });
  Sweep([this] { program.Choose(QStringLiteral("mnuMenuEdit")); });
  EXPECT_EQ(swept_, 4);
}

TEST_F(Reach, TheCodeWindowsNameTheirWidgets) {
  program.Place(0, {20, 20});
  program.Key(Qt::Key_F7);
  QWidget* code = program.Window().findChild<QWidget*>(QStringLiteral("FormCodigo"));
  ASSERT_NE(code, nullptr);
  EXPECT_EQ(Text(Nameless(*code)), "");
  program.Key(Qt::Key_Escape);
  program.Key(Qt::Key_D, Qt::ControlModifier);
  QWidget* declarations = program.Window().findChild<QWidget*>(QStringLiteral("FormViewCodes"));
  ASSERT_NE(declarations, nullptr);
  EXPECT_EQ(Text(Nameless(*declarations)), "");
  program.Key(Qt::Key_Escape);
  program.Key(Qt::Key_F1, Qt::ControlModifier);
  QWidget* examiner = program.Window().findChild<QWidget*>(QStringLiteral("FormViewObjects"));
  ASSERT_NE(examiner, nullptr);
  EXPECT_EQ(Text(Nameless(*examiner)), "");
  program.Key(Qt::Key_Escape);
}

TEST_F(Reach, EveryCommandCanBeChosenByKeysAlone) {
  program.Place(0, {20, 20});
  QSet<const QAction*> reached;
  for (QAction* column : program.Window().menuBar()->actions()) {
    const qsizetype mark = column->text().indexOf(u'&');
    ASSERT_GE(mark, 0) << column->text().toStdString();
    const char letter = column->text().at(mark + 1).toLower().toLatin1();
    QTest::keyClick(&program.Window(), letter, Qt::AltModifier);
    QMenu* menu = column->menu();
    ASSERT_TRUE(menu->isVisible()) << column->text().toStdString();
    for (int i = 0; i < menu->actions().size(); ++i) {
      if (menu->activeAction() != nullptr) reached.insert(menu->activeAction());
      QTest::keyClick(menu, Qt::Key_Down);
    }
    menu->close();
    program.Window().menuBar()->setActiveAction(nullptr);
    program.Surface().setFocus();
    for (const QAction* row : menu->actions()) {
      if (row->isSeparator() || !row->isEnabled()) continue;
      EXPECT_TRUE(reached.contains(row)) << row->text().toStdString();
    }
  }
}

TEST_F(Reach, TabWalksThroughEveryPanelToTheForm) {
  program.Place(0, {20, 20});
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  program.Settle();
  // On the form Tab goes from object to object: the walk begins behind it.
  program.Find<QLineEdit>(QStringLiteral("RowFilter")).setFocus();
  QSet<QString> met;
  QStringList way;
  for (int i = 0; i < 400 && QApplication::focusWidget() != nullptr; ++i) {
    for (const QWidget* at = QApplication::focusWidget(); at != nullptr; at = at->parentWidget()) {
      met.insert(at->objectName());
    }
    way.append(QApplication::focusWidget()->objectName());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  for (const char* panel : {"FindingsPanel", "Picture1", "Picture3", "FrmBarra"}) {
    EXPECT_TRUE(met.contains(QLatin1String(panel))) << panel << " is not on the way\n"
                                                    << Text(way.mid(0, 80));
  }
}

}  // namespace
}  // namespace tarnwick
