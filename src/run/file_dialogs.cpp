#include "run/file_dialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <algorithm>

#include "looks/text_bridge.h"
#include "platform/native_path.h"
#include "run/stage.h"
#include "text/path_text.h"

namespace tarnwick::run {
namespace {

constexpr int kOverwritePrompt = 1;
constexpr int kMultiSelect = 6;
constexpr int kFileMustExist = 9;

bool HasOption(const ObjectRecord& dialog, int option) {
  const auto* const picked = dialog.As<objects::PickedFiles>();
  return picked != nullptr && (picked->Options >> option & 1) != 0;
}

/// The folder of this machine; that of the process when it is not there.
QString NativeFolder(std::string_view folder) {
  const auto native = FindNative(std::string(folder));
  return native ? QString::fromStdString(*native) : QDir::currentPath();
}

}  // namespace

QStringList DialogFilters(std::string_view filter) {
  const QStringList parts = looks::ToQString(filter).split(u'|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString masks = parts.at(i + 1);
    // "*.*" means every file, also one without a dot.
    masks.replace(u';', u' ').replace(QStringLiteral("*.*"), QStringLiteral("*"));
    QString name = parts.at(i);
    const qsizetype bracket = name.lastIndexOf(u'(');
    if (bracket >= 0 && name.endsWith(u')')) name.truncate(bracket);
    filters << name.trimmed() + QStringLiteral(" (") + masks + u')';
  }
  return filters;
}

objects::PickedNames PickFilesByDialog(const ObjectRecord& dialog, QWidget* parent) {
  const bool save = dialog.Is(ObjectClass::QSaveDialog);
  QFileDialog shown(parent);
  shown.setObjectName(looks::ToQString(dialog.FullName()));
  shown.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  if (save) {
    shown.setFileMode(QFileDialog::AnyFile);
    shown.setOption(QFileDialog::DontConfirmOverwrite, !HasOption(dialog, kOverwritePrompt));
  } else if (HasOption(dialog, kMultiSelect)) {
    shown.setFileMode(QFileDialog::ExistingFiles);
  } else {
    shown.setFileMode(HasOption(dialog, kFileMustExist) ? QFileDialog::ExistingFile
                                                        : QFileDialog::AnyFile);
  }
  const QString caption = looks::ToQString(dialog.Text(Word::Caption));
  if (!caption.isEmpty()) shown.setWindowTitle(caption);
  const QStringList filters = DialogFilters(dialog.Text(Word::Filter));
  if (!filters.isEmpty()) {
    shown.setNameFilters(filters);
    const std::int64_t index = dialog.Number(Word::FilterIndex) - 1;
    const bool known = index >= 0 && index < filters.size();
    shown.selectNameFilter(filters.at(known ? index : 0));
  }
  std::string_view extension = dialog.Text(Word::DefaultExt);
  if (extension.starts_with('.')) extension.remove_prefix(1);
  shown.setDefaultSuffix(looks::ToQString(extension));
  const std::string name(dialog.Text(Word::FileName));
  const std::string_view named_folder = FolderOf(name);
  shown.setDirectory(
      NativeFolder(named_folder.empty() ? dialog.Text(Word::InitialDir) : named_folder));
  const std::string_view bare = BareName(name);
  if (!bare.empty()) shown.selectFile(looks::ToQString(bare));
  objects::PickedNames picked;
  if (shown.exec() != QDialog::Accepted) return picked;
  for (const QString& file : shown.selectedFiles()) {
    picked.Files.push_back(PathFromNative(QDir::cleanPath(file).toStdString()));
  }
  picked.FilterIndex = filters.indexOf(shown.selectedNameFilter()) + 1;
  return picked;
}

bool PickFontByDialog(Stage& stage, const ObjectRecord& dialog, QWidget* parent) {
  constexpr int kPointsPerInch = 72;
  constexpr int kPixelsPerInch = 96;
  QFontDialog shown(stage.FontOf(dialog).Font, parent);
  shown.setOption(QFontDialog::DontUseNativeDialog);
  shown.setObjectName(looks::ToQString(dialog.FullName()));
  const QString caption = looks::ToQString(dialog.Text(Word::Caption));
  if (!caption.isEmpty()) shown.setWindowTitle(caption);
  const ObjectId font = dialog.Object(Word::Font);
  if (shown.exec() != QDialog::Accepted) return false;
  objects::ObjectWorld& world = stage.World();
  objects::ObjectRecord* const kept = world.Find(font);
  if (kept == nullptr) return false;
  const QFont picked = shown.selectedFont();
  const int points =
      picked.pointSize() > 0
          ? picked.pointSize()
          : (picked.pixelSize() * kPointsPerInch + kPixelsPerInch / 2) / kPixelsPerInch;
  const auto put = [&](Word property, const Value& value) {
    world.Change(*kept, property, value, objects::Origin::Code);
  };
  put(Word::Name, Value::Text(looks::FromQString(picked.family())));
  put(Word::Size, Value::Integer(points));
  put(Word::Bold, Value::Integer(picked.bold() ? 1 : 0));
  put(Word::Italic, Value::Integer(picked.italic() ? 1 : 0));
  put(Word::Underline, Value::Integer(picked.underline() ? 1 : 0));
  put(Word::StrikeOut, Value::Integer(picked.strikeOut() ? 1 : 0));
  return true;
}

}  // namespace tarnwick::run
