// `IniEvents` when the number of an object is taken out of its kind, or put back.
#pragma once

#include <string>

#include "model/event_table.h"
#include "platform/ports.h"

namespace tarnwick {

/// Moves the lines of the objects behind the number in all sections of the file: down by one, the
/// lines of the number itself going, or with `back` up by one. False when there is no such file or
/// it cannot be written; the lines say no more than which event the code editor opens first.
bool RenumberEventIndex(FilePort& files, const std::string& path, const ObjectPlace& object,
                        bool back);

}  // namespace tarnwick
