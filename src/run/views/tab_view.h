// Tabs above what stands on them; and bars by which the user sizes what is docked.
#pragma once

#include "run/widget_view.h"

class QTabBar;

namespace tarnwick::run {

/// A row of tabs; what stands on the object is the program's affair, whichever tab is picked.
class TabView final : public TableView<TabView> {
 public:
  TabView(Stage& stage, const ObjectRecord& tabs);
  void Paint(QPainter& painter) const;
  void Resized();
  void ShowItems(const ObjectRecord& tabs, const objects::ItemsChange& change) override;

  void ShowTabs(const ObjectRecord& tabs);
  void ShowPicked(const ObjectRecord& tabs);
  void ShowHot(const ObjectRecord& tabs);
  static constexpr ShowRow<TabView> kRows[] = {{Word::Tab, &TabView::ShowTabs},
                                               {Word::TabIndex, &TabView::ShowPicked},
                                               {Word::HotTrack, &TabView::ShowHot}};

 protected:
  void ShowFont(const ObjectRecord& tabs) override;

 private:
  QTabBar* bar_;
  bool showing_ = false;
};

/// A bar beside a docked object: dragging it changes the size of that object.
class SplitterView final : public TableView<SplitterView> {
 public:
  SplitterView(Stage& stage, const ObjectRecord& splitter);
  void Paint(QPainter& painter) const;
  [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

  void ShowSide(const ObjectRecord& splitter);
  static constexpr ShowRow<SplitterView> kRows[] = {{Word::Align, &SplitterView::ShowSide}};

 private:
  void DragBy(int pixels);
  [[nodiscard]] ObjectId Neighbour(std::int64_t side) const;
  QPoint from_;
  bool dragging_ = false;
};

}  // namespace tarnwick::run
