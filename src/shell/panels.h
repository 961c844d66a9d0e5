// The parts of the main window that the user shows and hides.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tarnwick {

enum class Panel : std::uint8_t {
  Properties,  ///< `Picture1`
  Forms,       ///< `ListaFrms` with its heading and bar
  EventsBar,   ///< the `FrmBarra` of the current form
  ObjectBar,   ///< the floating tool box
  Findings,    ///< the list of the check's findings
  Output,      ///< what the running program printed
};
inline constexpr std::size_t kPanelCount = 6;

}  // namespace tarnwick
