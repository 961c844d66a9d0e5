#include "shell/status_follower.h"

#include "shell/status_text.h"

namespace tarnwick {

void StatusFollower::Refresh() {
  state_.View->SetSelectionText(SelectionStatus(state_.Tables));
  state_.View->CommandsChanged();
}

}  // namespace tarnwick
