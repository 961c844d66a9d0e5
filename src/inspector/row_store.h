// Reading and writing the value of a property row where its binding says that it is kept.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "inspector/row_bindings.h"

namespace tarnwick {

/// The stored value as text; a member that the control lacks, and a row of a list by index, which
/// takes StoredNumber, give nothing.
[[nodiscard]] std::optional<std::string> StoredText(const RowBinding& binding,
                                                    const RowTarget& target);
/// The stored number of a row that is held as one.
[[nodiscard]] std::optional<double> StoredNumber(const RowBinding& binding,
                                                 const RowTarget& target);
/// Stores a text as it stands in a row that is held as one. False, and nothing changed, when the
/// row is not.
bool StoreText(const RowBinding& binding, const RowTarget& target, std::string_view text);
/// Stores a number: of a list row its index, of a size its pixels. False, and nothing changed, when
/// it does not fit the field or is a negative size.
bool StoreNumber(const RowBinding& binding, const RowTarget& target, double value);
/// Brings the record up to date from the window or control that follows it, where both hold the
/// value (sizes of the form and of a TransparentFrame). False when there is nothing to bring.
bool SyncRecord(const RowBinding& binding, const RowTarget& target);

}  // namespace tarnwick
