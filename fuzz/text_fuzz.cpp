// Any bytes as a text in any field of a form: saved and read, no other record changes. The first
// two bytes choose form and field.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "fakes/any_text.h"
#include "fakes/random_project.h"

namespace {

/// Forms as reading their files leaves them.
const std::string& SettledForm(std::uint32_t seed) {
  static std::string forms[8];
  std::string& form = forms[seed % std::size(forms)];
  if (form.empty()) {
    tarnwick::test::FakeProject made;
    tarnwick::test::RandomProject(seed % std::size(forms)).Fill(made.Builder, {.Forms = 1});
    tarnwick::test::FakeProject read;
    read.Load(made.Saved());
    form = read.Saved();
  }
  return form;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarnwick;
  if (size < 2) return 0;
  const std::string& before = SettledForm(data[0]);
  test::FakeProject project;
  project.Load(before);
  const std::vector<test::TextField> fields = test::TextFieldsOf(project);
  const test::TextField& field = fields[data[1] % fields.size()];
  // Fields of one line take no line end.
  const std::string text =
      ReplaceAll({reinterpret_cast<const char*>(data) + 2, size - 2}, kLineEnd, " ");
  *field.Text = text;
  const std::string saved = project.Saved();
  if (!test::LostRecord(before, saved, field.Line).empty()) std::abort();
  test::FakeProject again;
  again.Load(saved);
  // A socket has no number of its own: round brackets in a text before it give it another one.
  const bool numbers_safe = !Contains(before, "[WinSock]") || !Contains(text, "(");
  if (numbers_safe && !test::LostRecord(before, again.Saved(), field.Line).empty()) std::abort();
  return 0;
}
