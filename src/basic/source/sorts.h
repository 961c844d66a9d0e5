// Nodes of several sorts, each as large as its own content.
#pragma once

#include <cstddef>
#include <cstdint>
#include <tuple>
#include <type_traits>
#include <utility>

namespace tarnwick::basic {

/// The sorts of a node: `Head` is what all have, with a number `Sort`, and behind it stands one of
/// `Contents`. A tree of many small nodes takes half the room that it would if each node had room
/// for every content.
template <class Head, class... Contents>
class Sorts {
 public:
  /// A node with its content.
  template <class T>
  struct Of : Head {
    T Content;
  };
  template <class T>
  [[nodiscard]] static Of<T> Made(Head head, T content) {
    head.Sort = NumberOf<T>();
    return {head, std::move(content)};
  }

  template <class T>
  [[nodiscard]] static bool Is(const Head& node) {
    return node.Sort == NumberOf<T>();
  }
  /// The content when it is of that sort, else null.
  template <class T>
  [[nodiscard]] static const T* As(const Head& node) {
    return Is<T>(node) ? &static_cast<const Of<T>&>(node).Content : nullptr;
  }
  /// Calls the visitor with the content.
  template <class Visitor>
  static decltype(auto) Visit(Visitor& visitor, const Head& node) {
    using First = std::tuple_element_t<0, std::tuple<Contents...>>;
    using Result = std::invoke_result_t<Visitor&, const First&>;
    using Row = Result (*)(Visitor&, const Head&);
    static constexpr Row kRows[] = {&Call<Contents, Result, Visitor>...};
    return kRows[node.Sort](visitor, node);
  }

 private:
  template <class T>
  static constexpr std::uint8_t NumberOf() {
    constexpr bool kSame[] = {std::is_same_v<T, Contents>...};
    std::uint8_t number = 0;
    while (!kSame[number]) ++number;
    return number;
  }
  template <class T, class Result, class Visitor>
  static Result Call(Visitor& visitor, const Head& node) {
    return visitor(static_cast<const Of<T>&>(node).Content);
  }
};

/// What the nodes of a tree can be asked, in front of their own members. `SortsOf(const Self&)`,
/// which is declared behind the sorts and never called, names them.
template <class Self>
struct Sorted {
  /// The content when it is of that sort, else null.
  template <class T>
  [[nodiscard]] const T* As() const {
    return decltype(SortsOf(Head()))::template As<T>(Head());
  }
  template <class T>
  [[nodiscard]] bool Is() const {
    return decltype(SortsOf(Head()))::template Is<T>(Head());
  }
  /// Calls the visitor with the content.
  template <class Visitor>
  decltype(auto) Visit(Visitor&& visitor) const {
    return decltype(SortsOf(Head()))::Visit(visitor, Head());
  }

 private:
  [[nodiscard]] const Self& Head() const { return static_cast<const Self&>(*this); }
};

}  // namespace tarnwick::basic
