// An open file whose text a test can read.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

namespace tarnwick::test {

/// Keeps in memory what is written to it.
class TextStream {
 public:
  TextStream();
  TextStream(const TextStream&) = delete;
  TextStream& operator=(const TextStream&) = delete;
  TextStream(TextStream&&) = delete;
  TextStream& operator=(TextStream&&) = delete;
  ~TextStream();

  [[nodiscard]] std::FILE* File() const noexcept { return file_; }
  [[nodiscard]] std::string Text() const;

 private:
  char* bytes_ = nullptr;
  std::size_t size_ = 0;
  std::FILE* file_;
};

}  // namespace tarnwick::test
