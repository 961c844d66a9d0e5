#include "codegen/event_code.h"

namespace tarnwick {

namespace {

/// The lines of a Sub between its head and its end, as the user wrote them.
void WriteBody(Generation& gen, std::string_view code) {
  gen.Out.Line(code);
  if (gen.Bodies != nullptr) gen.Bodies->insert(code.data());
}

/// Calls `write(kind, sub_name, event, code)` for every event of every object that has code.
template <class Write>
void ForEachObjectEvent(Generation& gen, Write write) {
  GeneratorState& state = gen.State;
  for (const ControlRef& control : gen.User().Controls()) {
    const Kind kind = control->Id;
    const EventWalk walk = InfoOf(kind).Program.Events;
    if (!control->Visible || walk == EventWalk::PassedOver) continue;
    if (kind == Kind::Menu && !gen.MenuBarVisible()) continue;
    if (walk == EventWalk::Numbered) state.CurrentOrdinal = state.KindCounters.Step(kind);
    const OwnerCode code = gen.Code.OfObject(kind, state.CurrentOrdinal);
    code.ForEach(kObjectEvents, [&](Event event, std::string_view text) {
      write(kind, SubNameOf(control->Tag, state.CurrentOrdinal), event, text);
    });
  }
}

/// Calls `write(name)` with each item and sub-item of popup number `p` from item `first` on. A
/// removed popup has none.
template <class Write>
void ForEachPopUpItem(const Generation& gen, int p, std::size_t first, Write write) {
  const PopUpFormRec* popup = PopUpRowsOf(gen, p);
  if (popup == nullptr || popup->Removed == 1) return;
  for (std::size_t q = first; q < popup->Items.size(); ++q) {
    write(popup->Items[q].Name);
    for (const PopUpEntryRec& entry : SubItemsOf(popup->Items[q])) write(entry.Name);
  }
}

/// Calls `write(name, n)` with the name and index of each item of the menu bar that has a name.
template <class Write>
void ForEachMenuItem(const Generation& gen, Write write) {
  if (!gen.MenuBarVisible()) return;
  const auto& items = gen.Tables.MenuItems;
  for (std::size_t n = 0; n < items.size(); ++n) {
    if (!items[n].Name.empty()) write(items[n].Name, static_cast<int>(n));
  }
}

void DeclarePopUpSubs(Generation& gen) {
  const int highest = gen.User().UBound(Kind::PopUpMenu);
  for (int p = 1; p <= highest; ++p) {
    const ControlRef popup = gen.User().Element(Kind::PopUpMenu, p);
    if (popup && !gen.Code.OnPopUpOf(popup->Tag, p).empty()) {
      gen.Out.Line("Declare Sub ", popup->Tag, "_OnPopUp");
    }
    // Item 0 is left out here, though it gets a body.
    ForEachPopUpItem(gen, p, 1, [&](std::string_view name) {
      if (!gen.Code.OnClickOf(name).empty()) gen.Out.Line("Declare Sub ", name, "_OnClick");
    });
  }
}

void WritePopUpBody(Generation& gen, std::string_view name, const SourcePlace& place,
                    std::string_view code) {
  if (code.empty()) return;
  gen.Mark(place);
  gen.Out.Line("Sub ", name, "_", InfoOf(place.Of).Name);
  WriteBody(gen, code);
  gen.Out.Line("End Sub");
}

void WritePopUpBodies(Generation& gen) {
  const int highest = gen.User().UBound(Kind::PopUpMenu);
  for (int p = 1; p <= highest; ++p) {
    SourcePlace place{.Part = SourcePart::Body,
                      .Id = Kind::PopUpMenu,
                      .Of = Event::OnPopUp,
                      .Number = static_cast<std::int16_t>(p)};
    if (const ControlRef popup = gen.User().Element(Kind::PopUpMenu, p)) {
      WritePopUpBody(gen, popup->Tag, place, gen.Code.OnPopUpOf(popup->Tag, p));
    }
    place.Of = Event::OnClick;
    ForEachPopUpItem(gen, p, 0, [&](std::string_view name) {
      StepOrdinal(place.Item);
      WritePopUpBody(gen, name, place, gen.Code.OnClickOf(name));
    });
  }
}

void WriteFormBodies(Generation& gen) {
  gen.Code.OfForm().ForEach(kFormSubEvents, [&](Event event, std::string_view code) {
    gen.Mark({.Part = SourcePart::Body, .Of = event});
    gen.Out.Line("Sub ", gen.Record().Name, "_", InfoOf(event).Signature);
    WriteBody(gen, code);
    gen.Out.Line("End Sub");
    gen.Out.Blank();
  });
}

}  // namespace

void WriteSubDeclares(Generation& gen) {
  gen.Mark({.Part = SourcePart::Declares});
  gen.Code.OfForm().ForEach(kFormSubEvents, [&](Event event, std::string_view) {
    // The bare event name: only the Sub line has the parameters.
    gen.Out.Line("Declare Sub ", gen.Record().Name, "_", InfoOf(event).Name);
  });
  gen.Out.Blank();
  ForEachObjectEvent(gen, [&](Kind, const Numbered& sub, Event event, std::string_view) {
    gen.Out.Line("Declare Sub ", sub, "_", InfoOf(event).Signature);
  });
  DeclarePopUpSubs(gen);
  ForEachMenuItem(gen, [&](std::string_view name, int n) {
    if (gen.Code.OnClickOf(name).empty()) return;
    gen.Out.Line("Declare Sub ", SubNameOf(name, n), "_OnClick");
  });
  gen.Out.Blank();
  gen.Mark({.Part = SourcePart::PublicDeclarations});
  gen.Out.Line("'---Public Declarations");
  gen.Out.Line(gen.Record().DeclarePbl);
  gen.Out.Blank();
  gen.Out.Blank();
}

void WriteEventSubs(Generation& gen) {
  gen.State.KindCounters.Reset(CounterLife::Walk);
  WriteFormBodies(gen);
  ForEachObjectEvent(gen, [&](Kind kind, const Numbered& sub, Event event, std::string_view code) {
    gen.Mark(
        {.Part = SourcePart::Body, .Id = kind, .Of = event, .Number = gen.State.CurrentOrdinal});
    gen.Out.Line("Sub ", sub, "_", InfoOf(event).Signature);
    WriteBody(gen, code);
    gen.Out.Line("End Sub");
    gen.Out.Blank();
    gen.Out.Blank();
  });
  gen.State.KindCounters.Reset(CounterLife::Walk);
  gen.Out.Blank();
  WritePopUpBodies(gen);
  ForEachMenuItem(gen, [&](std::string_view name, int n) {
    const std::string_view code = gen.Code.OnClickOf(name);
    if (code.empty()) return;
    gen.Mark(
        {.Part = SourcePart::Body, .Id = Kind::MenuItem, .Number = static_cast<std::int16_t>(n)});
    gen.Out.Line("Sub ", SubNameOf(name, n), "_OnClick");
    WriteBody(gen, code);
    gen.Out.Line("End Sub");
    gen.Out.Blank();
  });
}

}  // namespace tarnwick
