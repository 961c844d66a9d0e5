#include "designer/history/form_shadow.h"

#include <array>
#include <utility>

namespace tarnwick {

namespace {

/// Calls `use` with the elements of several tuples, place by place.
template <class Use, class First, class... Others>
void ForEachOf(Use use, First&& first, Others&&... others) {
  constexpr std::size_t size = std::tuple_size_v<std::remove_cvref_t<First>>;
  const auto at = [&]<std::size_t I>(std::integral_constant<std::size_t, I>) {
    use(std::get<I>(first), std::get<I>(others)...);
  };
  [&]<std::size_t... I>(std::index_sequence<I...>) {
    (at(std::integral_constant<std::size_t, I>{}), ...);
  }
  (std::make_index_sequence<size>{});
}

/// Brings a kept value up to date with live fields; null for fields that are not there.
template <class Values, class Fields>
ValueChange<Values> RenewValue(Shared<Values>& kept, const Fields* fields) {
  if (fields == nullptr ? kept == nullptr : kept != nullptr && *kept == *fields) {
    return {kept, kept};
  }
  Shared<Values> now = fields == nullptr ? nullptr : std::make_shared<const Values>(*fields);
  return {std::exchange(kept, now), now};
}

template <class Values, class Fields>
void PutValue(Shared<Values>& kept, const ValueChange<Values>& change, bool back, Fields fields) {
  if (change.Empty()) return;
  kept = back ? change.Before : change.After;
  if (kept != nullptr) fields = *kept;
}

/// The records of an array from slot 1 on; no object uses slot 0. A record that was never written
/// reads as an empty one.
template <class T>
RowsChange<Shared<T>> RenewRecords(std::vector<Shared<T>>& rows, const RecordArray<T>& records) {
  return RenewRows(
      rows, static_cast<std::size_t>(records.UBound()),
      [&](const Shared<T>& row, std::size_t i) {
        return *row == RecordOrEmpty(records, static_cast<int>(i) + 1);
      },
      [&](std::size_t i, const Shared<T>* old) {
        const T& record = RecordOrEmpty(records, static_cast<int>(i) + 1);
        return old != nullptr && **old == record ? *old : std::make_shared<const T>(record);
      });
}

template <class T>
void PutRecords(RecordArray<T>& records, const RowsChange<Shared<T>>& change, bool back) {
  const auto& from = back ? change.After : change.Before;
  const auto& to = back ? change.Before : change.After;
  const auto first = static_cast<int>(change.First) + 1;
  const auto removed = static_cast<int>(from.size());
  const auto inserted = static_cast<int>(to.size());
  const int kept = std::min(removed, inserted);
  records.Splice(first + kept, removed - kept, inserted - kept);
  for (int i = 0; i < inserted; ++i) {
    if (T* const record = records.At(first + i)) *record = *to[static_cast<std::size_t>(i)];
  }
}

Shared<DesignControl> KeptControl(const DesignControl& control) {
  auto kept = std::make_shared<DesignControl>(control);
  kept->Index = 0;
  PlaceFieldsOf(*kept) = PlaceValues{};
  return kept;
}

}  // namespace

bool FormChange::Empty() const {
  bool empty = OpenBefore == OpenAfter && Record.Empty() && Window.Empty() && Bar.Empty() &&
               Objects.Empty() && Drawn.Empty();
  ForEachOf([&empty](const auto& records) { empty = empty && records.Empty(); }, Records);
  return empty;
}

FormChange FormShadow::Renew(const ProjectTables& tables, int form) {
  FormChange change;
  const FormRec* const record = tables.Form(form);
  const DesignForm* const window = tables.IsLive(form) ? tables.UserIfAny(form) : nullptr;
  const auto slot = static_cast<std::size_t>(form);
  // A bar that was not looked at yet is an empty one.
  static const FrmBarra empty_bar;
  const FrmBarra* bar = slot < tables.FormsBar.size() ? tables.FormsBar[slot].get() : nullptr;
  if (bar == nullptr) bar = &empty_bar;
  if (window == nullptr) bar = nullptr;
  change.OpenBefore = std::exchange(open_, window != nullptr);
  change.OpenAfter = open_;

  const auto renew = [](auto& kept, const auto* from, auto fields_of) {
    if (from == nullptr) {
      return RenewValue(kept, static_cast<const decltype(fields_of(*from))*>(nullptr));
    }
    const auto fields = fields_of(*from);
    return RenewValue(kept, &fields);
  };
  change.Record = renew(record_, record, [](const auto& r) { return FieldsOf(r); });
  change.Window = renew(window_, window, [](const auto& w) { return WindowFieldsOf(w); });
  change.Bar = renew(bar_, bar, [](const auto& b) { return BarFieldsOf(b); });
  RenewObjects(window, change);
  if (record != nullptr) {
    ForEachOf([](auto& differs, auto& rows,
                 const auto& records) { differs = RenewRecords(rows, records); },
              change.Records, records_, ArraysOf(*record));
  } else {
    ForEachOf([](auto& differs, auto& rows) { differs.Before = std::exchange(rows, {}); },
              change.Records, records_);
  }
  return change;
}

void FormShadow::RenewObjects(const DesignForm* window, FormChange& change) {
  static const std::vector<ControlRef> none;
  const auto& controls = window != nullptr ? window->Controls() : none;
  const auto& drawn = window != nullptr ? window->DrawOrder() : none;
  const std::size_t parts = window != nullptr ? window->PartCount() : 0;

  std::vector<int> steps(controls.size() - parts);
  std::array<int, kKindCount> last{};
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const DesignControl& control = *controls[parts + i];
    int& before = last[static_cast<std::size_t>(control.Id)];
    steps[i] = control.Index - std::exchange(before, control.Index);
  }
  const auto same_values = [](const DesignControl& kept, const DesignControl& live) {
    return ControlFieldsOf(kept) == ControlFieldsOf(live);
  };
  change.Objects = RenewRows(
      objects_, steps.size(),
      [&](const ObjectRow& row, std::size_t i) {
        return row.Control == controls[parts + i] && row.Step == steps[i] &&
               row.Place == PlaceFieldsOf(*row.Control) && same_values(*row.Values, *row.Control);
      },
      [&](std::size_t i, const ObjectRow* old) {
        const ControlRef& control = controls[parts + i];
        const bool kept = old != nullptr && same_values(*old->Values, *control);
        return ObjectRow{control, steps[i], PlaceFieldsOf(*control),
                         kept ? old->Values : KeptControl(*control)};
      });
  change.Drawn = RenewRows(
      drawn_, drawn.size(), [&](const ControlRef& row, std::size_t i) { return row == drawn[i]; },
      [&](std::size_t i, const ControlRef*) { return drawn[i]; });
}

void FormShadow::Put(ProjectTables& tables, int form, const FormChange& change, bool back) {
  open_ = back ? change.OpenBefore : change.OpenAfter;
  if (FormRec* const record = tables.Form(form)) {
    PutValue(record_, change.Record, back, FieldsOf(*record));
    ForEachOf(
        [back](auto& rows, auto records, const auto& differs) {
          if (differs.Empty()) return;
          PutRows(rows, differs, back);
          PutRecords(*records, differs, back);
        },
        records_,
        std::apply([](auto&... arrays) { return std::tuple{&arrays...}; }, ArraysOf(*record)),
        change.Records);
  }
  DesignForm* const window = open_ ? tables.User(form) : nullptr;
  if (window != nullptr) {
    PutValue(window_, change.Window, back, WindowFieldsOf(*window));
    if (!change.Bar.Empty()) {
      PutValue(bar_, change.Bar, back, BarFieldsOf(*tables.Bar(form)));
    }
    PutObjects(*window, change, back);
    return;
  }
  window_ = nullptr;
  bar_ = nullptr;
  objects_.clear();
  drawn_.clear();
}

void FormShadow::PutObjects(DesignForm& window, const FormChange& change, bool back) {
  PutRows(objects_, change.Objects, back);
  PutRows(drawn_, change.Drawn, back);
  const std::vector<ObjectRow>& put = back ? change.Objects.Before : change.Objects.After;
  for (const ObjectRow& row : put) {
    *row.Control = *row.Values;
    PlaceFieldsOf(*row.Control) = row.Place;
  }
  std::vector<ControlRef> objects;
  objects.reserve(objects_.size());
  std::array<int, kKindCount> last{};
  for (const ObjectRow& row : objects_) {
    int& index = last[static_cast<std::size_t>(row.Control->Id)];
    index += row.Step;
    row.Control->Index = index;
    objects.push_back(row.Control);
  }
  window.Arrange(std::move(objects), drawn_);
}

}  // namespace tarnwick
