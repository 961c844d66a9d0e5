#include "shell/shell_fixture.h"

namespace tarnwick {

ShellTest::ShellTest() {
  main.AddObserver(observer);
}

ShellTest::~ShellTest() = default;

FormUser& ShellTest::surface() {
  return *main.CurrentUser();
}

void ShellTest::Start() {
  view.OnCloseMainWindow = [this] { closed = main.Close(); };
  main.Load(views);
  main.Time_Timer();
  log().Clear();
}

void ShellTest::Place(int tool, int x, int y) {
  main.Commands().PressTool(tool);
  surface().Gestures().Form_MouseDown(kLeftButton, 0, Twips(x), Twips(y));
  surface().Gestures().MouseUp();
}

void ShellTest::SaveUnder(const std::string& path, std::initializer_list<std::string> forms) {
  ports.Dialogs.SaveAnswers.push_back(path);
  for (const std::string& form : forms) ports.Dialogs.SaveAnswers.push_back(form);
  main.Commands().Run(Command::Save);
  log().Clear();
}

std::vector<std::string> ShellTest::Lines() {
  std::vector<std::string> lines;
  for (const FormList::Line& line : tables().ListaFrms.Lines()) lines.push_back(line.Text);
  return lines;
}

void ShellTest::ExpectOrder(std::initializer_list<std::string_view> entries) {
  const std::vector<std::string>& all = log().Entries();
  std::size_t at = 0;
  for (const std::string_view entry : entries) {
    while (at < all.size() && !std::string_view(all[at]).starts_with(entry)) ++at;
    if (at == all.size()) {
      ADD_FAILURE() << "no \"" << entry << "\" after what came before it in\n" << Text();
      return;
    }
    ++at;
  }
}

std::string ShellTest::Text() {
  std::string text;
  for (const std::string& entry : log().Entries()) text.append(entry).append("\n");
  return text;
}

}  // namespace tarnwick
