#include "menus/menu_design.h"

#include <array>

namespace tarnwick::menus {

namespace {

constexpr std::array kMenuBarExample{
    ExampleRow{0, "&File", "mnuFile"},           ExampleRow{1, "&New", "mnuNew"},
    ExampleRow{1, "&Open", "mnuOpen"},           ExampleRow{1, "&Save", "mnuSave"},
    ExampleRow{1, "Save &As", "mnuSaveAs"},      ExampleRow{1, "-", "sep1"},
    ExampleRow{1, "&Exit", "mnuExit"},           ExampleRow{0, "&Edit", "mnuEdit"},
    ExampleRow{1, "&Copy", "mnuCopy"},           ExampleRow{1, "&Cut", "mnuCut"},
    ExampleRow{1, "&Paste", "mnuPaste"},         ExampleRow{1, "-", "sep2"},
    ExampleRow{1, "&Select All", "mnuSelectAll"}};

constexpr std::array kPopUpExample{ExampleRow{0, "&Copy", "ppmCopy"},
                                   ExampleRow{0, "&Cut", "ppmCut"},
                                   ExampleRow{0, "&Paste", "ppmPaste"},
                                   ExampleRow{0, "-", "ppmsep1"},
                                   ExampleRow{0, "&Select All", "ppmSelectAll"},
                                   ExampleRow{0, "-", "ppmsep2"},
                                   ExampleRow{0, "&SubItems", "ppmSubItems"},
                                   ExampleRow{1, "&SubItem1", "SubItem1"},
                                   ExampleRow{1, "&SubItem2", "SubItem2"}};

constexpr MenuDesign kMenuBar{"FormMenu", "Menu Edit", "Menu Edit", kMenuBarExample, true, false};
constexpr MenuDesign kPopUp{"FormPopUp", "PopUpMenu Edit", "PopUpMenu Edit", kPopUpExample, false,
                            true};

}  // namespace

const MenuDesign& MenuBarDesign() noexcept {
  return kMenuBar;
}

const MenuDesign& PopUpDesign() noexcept {
  return kPopUp;
}

}  // namespace tarnwick::menus
