// The text of a form file on its way into the tables.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "model/project_records.h"
#include "persistence/record_layouts.h"
#include "persistence/tag_scanner.h"

namespace tarnwick {

/// What became of a form text.
enum class FormReadResult {
  Read,        ///< a form was added
  NoForm,      ///< the text holds no form record; its objects went to the form before it
  Refused,     ///< the form is in the project already; nothing further was read
  Unreadable,  ///< there is no such file, or no such form number; nothing changed
};

/// Reads one form file, line by line, as if the user had made its objects. A statement that fails
/// is passed over: what a bad number or a missing tag leaves alone keeps its value.
class FormReader {
 public:
  /// `file_name` becomes the form's `FileName`. With a `target` the form record is read into that
  /// number, which keeps its list line and its file.
  FormReader(ProjectTables& tables, std::string file_name, int target = 0);

  FormReadResult Read(std::string_view text);
  /// The name of the form that was refused; "" while none was.
  [[nodiscard]] const std::string& RefusedName() const noexcept { return refused_name_; }
  /// The number of the form that was read last; 0 when there was none.
  [[nodiscard]] int LastForm() const noexcept { return last_form_; }

 private:
  /// The targets of one object's values; null where a bad number leaves no record.
  struct Object {
    DesignControl& Control;
    std::optional<std::int16_t> Number;
    ObjectRec* Record;
    EventCodeTable::Owner* Code;
  };

  /// False when the form is refused and the file is read no further.
  bool ReadRecord(std::string_view line);
  bool ReadForm();
  void ReadFormValues(int form);
  void ReadObject(Kind kind);
  void ReadPicture(Kind kind, Object& object);
  void ReadMenuTitle();
  void ReadItemCode();
  void ReadDeclarations();

  /// Takes the values of a record, field by field. There is one overload for each type of source.
  void TakeFields(Kind kind, Object& object);
  void Take(Object& object, Tag tag, Special special);
  void Take(Object& object, Tag tag, Member member);
  void Take(Object& object, Tag tag, Event event);
  void Take(Object& object, Tag tag, ItemsText items);
  void Take(Object& object, Tag tag, CommaText text);
  template <class T>
  void Take(Object& object, Tag tag, T ObjectRec::*field);
  template <class T>
  void Take(Object& object, Tag tag, T FormRec::*field);
  template <class T>
  void Take(Object& object, Tag tag, T WinSockRec::*field);
  template <class T>
  void Take(Object& object, Tag tag, T HtmlViewerRec::*field);
  template <class T>
  void Take(Object& object, Tag tag, T PopUpItemRec::*field);
  void TakeFormCode(Tag tag, Event event);

  /// Puts a value into a field: a text restored, a number by the digits at its head.
  template <class T>
  void Put(Tag tag, T& field) {
    if (InfoOf(tag).How == Restore::Plain) {
      SetFromText(field, scanner_.Stored(tag));
    } else {
      SetFromText(field, scanner_.Value(tag));
    }
  }

  void AddToBar(std::string name, Event event);

  ProjectTables& tables_;
  TagScanner scanner_;
  std::string file_name_;
  std::string refused_name_;
  int target_;
  int form_ = 0;  ///< the form that objects go to: the one with the highest number
  int last_form_ = 0;
  bool menu_met_ = false;
  /// Takes the objects before the first form of a project; slot 0 is their record.
  std::unique_ptr<DesignForm> nowhere_;
  DesignForm* window_ = nullptr;
  FormRec* record_ = nullptr;
  // The start of the keys of its code.
  std::string form_key_;
  int window_number_ = 0;
};

}  // namespace tarnwick
