// Numbers for variables, as VARPTR gives them.
#pragma once

#include <map>

#include "basic/lib/byte_memory.h"
#include "basic/vm/body.h"

namespace tarnwick::basic {

/// Hands out numbers for the bytes of variables and reads and writes through them, within bounds.
/// A variable of a call loses its number when the call ends.
class AddressBook : public ByteMemory {
 public:
  AddressBook() = default;
  AddressBook(const AddressBook&) = delete;
  AddressBook& operator=(const AddressBook&) = delete;
  ~AddressBook() override;

  /// The number of a variable. `owner` is kept alive as long as the number is known (null: none);
  /// `depth` is that of the call whose variable it is, 0 for those of the program.
  std::int64_t NumberOf(Slot* variable, const FieldLayout& layout, Body* owner, std::size_t depth);
  /// Forgets the variables of calls of this depth and deeper ones.
  void EndCalls(std::size_t depth);
  [[nodiscard]] std::size_t DeepestCall() const { return deepest_; }

  [[nodiscard]] std::optional<std::string> Read(std::int64_t address, std::size_t count) override;
  bool Write(std::int64_t address, std::string_view bytes) override;
  [[nodiscard]] std::optional<std::string> TextAt(std::int64_t address) override;

 private:
  struct Entry {
    Slot* Variable = nullptr;
    const FieldLayout* Layout = nullptr;
    Body* Owner = nullptr;
    std::size_t Depth = 0;
    std::size_t Reserved = 0;
  };
  /// The entry that an address falls into, and the offset in it.
  std::pair<Entry*, std::size_t> Find(std::int64_t address);

  std::map<std::int64_t, Entry> entries_;
  std::map<Slot*, std::int64_t> numbers_;
  std::int64_t next_ = 0x10000;
  std::size_t deepest_ = 0;
};

}  // namespace tarnwick::basic
