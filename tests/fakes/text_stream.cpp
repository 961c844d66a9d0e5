#include "fakes/text_stream.h"

namespace tarnwick::test {

TextStream::TextStream() : file_(open_memstream(&bytes_, &size_)) {}

TextStream::~TextStream() {
  std::fclose(file_);
  std::free(bytes_);
}

std::string TextStream::Text() const {
  std::fflush(file_);
  return {bytes_, size_};
}

}  // namespace tarnwick::test
