// Viewers of pages.
#include "objects/behaviour.h"

namespace tarnwick::objects {
namespace {

using enum ObjectClass;
constexpr BehaviourRow kRows[] = {
    {QOleContainer, Word::Busy, {.Get = LiveValue}},
    {QOleContainer, Word::LocationURL, {.Get = LiveValue}},
    {QOleContainer, Word::LocationName, {.Get = LiveValue}},
};

}  // namespace

BehaviourRows PageBehaviour() {
  return kRows;
}

}  // namespace tarnwick::objects
