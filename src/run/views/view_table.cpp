// Which view shows which class.
#include "run/stage.h"
#include "run/views/bar_views.h"
#include "run/views/button_view.h"
#include "run/views/face_views.h"
#include "run/views/form_view.h"
#include "run/views/grid_view.h"
#include "run/views/list_rows_view.h"
#include "run/views/list_views.h"
#include "run/views/other_views.h"
#include "run/views/panel_views.h"
#include "run/views/tab_view.h"
#include "run/views/text_views.h"
#include "run/views/tree_view.h"

namespace tarnwick::run {
namespace {

template <class View>
ObjectView* Make(Stage& stage, const ObjectRecord& object) {
  return new View(stage, object);
}

struct ViewRow {
  ObjectClass Class;
  ObjectView* (*Make)(Stage&, const ObjectRecord&);
};
constexpr ViewRow kViews[] = {
    {ObjectClass::QForm, Make<FormView>},         {ObjectClass::QButton, Make<ButtonView>},
    {ObjectClass::QCoolBtn, Make<ButtonView>},    {ObjectClass::QOvalBtn, Make<ButtonView>},
    {ObjectClass::QCheckBox, Make<MarkView>},     {ObjectClass::QRadioButton, Make<MarkView>},
    {ObjectClass::QLabel, Make<LabelView>},       {ObjectClass::QImage, Make<ImageView>},
    {ObjectClass::QCanvas, Make<ImageView>},      {ObjectClass::QEdit, Make<EditView>},
    {ObjectClass::QRichEdit, Make<RichEditView>}, {ObjectClass::QListBox, Make<ListView>},
    {ObjectClass::QListView, Make<ListRowsView>}, {ObjectClass::QTreeView, Make<TreeView>},
    {ObjectClass::QFileListBox, Make<ListView>},  {ObjectClass::QComboBox, Make<ComboView>},
    {ObjectClass::QTimer, Make<TimerView>},       {ObjectClass::QGlassFrame, Make<GlassView>},
    {ObjectClass::QOleContainer, Make<PageView>}, {ObjectClass::QPanel, Make<PanelView>},
    {ObjectClass::QGroupBox, Make<GroupView>},    {ObjectClass::QScrollBox, Make<ScrollBoxView>},
    {ObjectClass::QGauge, Make<GaugeView>},       {ObjectClass::QTrackBar, Make<SliderView>},
    {ObjectClass::QScrollBar, Make<SliderView>},  {ObjectClass::QStatusBar, Make<StatusView>},
    {ObjectClass::QTabControl, Make<TabView>},    {ObjectClass::QSplitter, Make<SplitterView>},
    {ObjectClass::QStringGrid, Make<GridView>},
};

}  // namespace

ObjectView* MakeView(Stage& stage, const ObjectRecord& object) {
  for (const ViewRow& row : kViews) {
    if (object.Is(row.Class)) return row.Make(stage, object);
  }
  return nullptr;
}

}  // namespace tarnwick::run
