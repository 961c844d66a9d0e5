// One form as the last step left it, and what a step changed on it.
#pragma once

#include <tuple>
#include <vector>

#include "designer/history/recorded_fields.h"
#include "designer/history/rows.h"

namespace tarnwick {

/// An object in the collection of a form. The control itself is part of it: a control that comes
/// back is the one that went, so that references to it stay good.
struct ObjectRow {
  ControlRef Control;
  int Step = 1;  ///< its index less that of the object of its kind before it
  /// Position and size are kept in the row itself: a step that moves many objects stays small.
  PlaceValues Place;
  Shared<DesignControl> Values;  ///< without position, size and index
  friend bool operator==(const ObjectRow&, const ObjectRow&) = default;
};

template <class Arrays>
struct RowsOfArrays;
template <class... T>
struct RowsOfArrays<std::tuple<RecordArray<T>&...>> {
  using Rows = std::tuple<std::vector<Shared<T>>...>;
  using Changes = std::tuple<RowsChange<Shared<T>>...>;
};
using RecordRows = RowsOfArrays<decltype(ArraysOf(std::declval<FormRec&>()))>::Rows;
using RecordChanges = RowsOfArrays<decltype(ArraysOf(std::declval<FormRec&>()))>::Changes;

/// What differs between two states of a form.
struct FormChange {
  bool OpenBefore = false;  ///< the form has its window
  bool OpenAfter = false;
  ValueChange<FormValues> Record;
  ValueChange<WindowValues> Window;
  ValueChange<BarValues> Bar;
  RowsChange<ObjectRow> Objects;
  RowsChange<ControlRef> Drawn;
  RecordChanges Records;

  [[nodiscard]] bool Empty() const;
};

/// The values of one form. They are brought up to date after a step, and put back into the tables
/// by Put.
class FormShadow {
 public:
  /// Takes over what the tables hold for a form now, and returns what is different from before. A
  /// shadow that is new differs in everything.
  FormChange Renew(const ProjectTables& tables, int form);
  /// Puts one side of a change into the tables. The form has its slot, and a window when that side
  /// has one.
  void Put(ProjectTables& tables, int form, const FormChange& change, bool back);

 private:
  void RenewObjects(const DesignForm* window, FormChange& change);
  void PutObjects(DesignForm& window, const FormChange& change, bool back);

  bool open_ = false;
  Shared<FormValues> record_;
  Shared<WindowValues> window_;
  Shared<BarValues> bar_;
  std::vector<ObjectRow> objects_;
  std::vector<ControlRef> drawn_;
  RecordRows records_;
};

}  // namespace tarnwick
