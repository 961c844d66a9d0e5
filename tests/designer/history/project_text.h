// All of a project that a step can change, as one text.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "model/project_records.h"
#include "persistence/form_writer.h"

namespace tarnwick {

enum class WithSelection { No, Yes };

/// The form files, the code of all events, menu arrays and popups, the form list, bars and
/// selections: equal texts are equal projects.
inline std::string ProjectText(ProjectTables& tables, WithSelection with = WithSelection::Yes) {
  std::string text;
  for (int form = 1; form <= tables.FormsCount; ++form) {
    text += "#" + std::to_string(form) + (tables.IsLive(form) ? " live\n" : " removed\n");
    if (!tables.IsLive(form)) continue;
    text += FormFileText(tables, form);
    const DesignForm& window = *tables.User(form);
    for (const ControlRef& control : window.DrawOrder()) text += control->Tag + ";";
    text += std::to_string(window.NextTabOrder) + "\n";
    if (with == WithSelection::Yes) text += window.NameObjet + "\n";
    for (const FrmBarra::Entry& entry : tables.Bar(form)->Entries) text += entry.Name + "|";
  }
  std::vector<std::string> entries;
  tables.EventTable.ForEach([&](const std::string& key, const std::string& code) {
    entries.push_back(key + "=" + code + "\n");
  });
  std::sort(entries.begin(), entries.end());
  for (const std::string& entry : entries) text += entry;
  for (const FormList::Line& line : tables.ListaFrms.Lines()) text += line.Text + "\n";
  for (const MenuBarRec& title : tables.MenuTitles) text += title.Caption + "/" + title.Name + "\n";
  for (const MenuItemRec& item : tables.MenuItems) text += item.Caption + "/" + item.Name + "\n";
  return text + "main " + tables.MainFormName + "\n";
}

}  // namespace tarnwick
