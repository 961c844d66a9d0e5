// An open file whose text a test can read.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

namespace tarnwick::test {

/// Keeps in memory what is written to it.
class TextStream {
 public:
  TextStream() : file_(open_memstream(&bytes_, &size_)) {}
  TextStream(const TextStream&) = delete;
  TextStream& operator=(const TextStream&) = delete;
  TextStream(TextStream&&) = delete;
  TextStream& operator=(TextStream&&) = delete;
  ~TextStream() {
    std::fclose(file_);
    std::free(bytes_);
  }

  [[nodiscard]] std::FILE* File() const noexcept { return file_; }
  [[nodiscard]] std::string Text() const {
    std::fflush(file_);
    return {bytes_, size_};
  }

 private:
  char* bytes_ = nullptr;
  std::size_t size_ = 0;
  std::FILE* file_;
};

}  // namespace tarnwick::test
