// Timers, transparent frames and page viewers.
#pragma once

#include <QTimer>

#include "run/widget_view.h"

class QTextBrowser;

namespace tarnwick::run {

class TimerView final : public ObjectView {
 public:
  TimerView(Stage& stage, const ObjectRecord& timer);
  void Build(const ObjectRecord& timer) override { Apply(timer, Word::Interval); }
  void Apply(const ObjectRecord& timer, Word property) override;
  void Retire() override { timer_.stop(); }

 private:
  QTimer timer_;
};

/// The form as a whole shines through, for the area of the frame cannot do so alone.
class GlassView final : public TableView<GlassView> {
 public:
  GlassView(Stage& stage, const ObjectRecord& frame);

  void ShowGlass(const ObjectRecord& frame);
  static constexpr ShowRow<GlassView> kRows[] = {{Word::Transparency, &GlassView::ShowGlass}};
};

/// Pages: texts behind "about:", and files of this machine.
class PageView final : public TableView<PageView> {
 public:
  PageView(Stage& stage, const ObjectRecord& viewer);
  bool Invoke(const ObjectRecord& viewer, const MemberInfo& method, std::span<Value> arguments,
              Value& result) override;
  bool Live(const ObjectRecord& viewer, const MemberInfo& member, std::span<const Value> index,
            Value& out) override;

  void ShowPage(const ObjectRecord& viewer);
  static constexpr ShowRow<PageView> kRows[] = {{Word::BorderStyle, &PageView::ShowPage}};

 private:
  [[nodiscard]] QTextBrowser& Browser() const;
  void Navigate(std::string_view address);
  std::string address_;
};

}  // namespace tarnwick::run
