// What is to be seen of an object, by words of a table.
#pragma once

#include <string>

#include "run/live_program.h"

namespace tarnwick::test {

/// Looks at the object `name` of a running program for what a cell says, such as "text=Words" or
/// "rect=20,20,91,*". Returns what is there instead; "" when it is as said.
///
///   rect=x,y,w,h       place on its parent; * for any number, <n for a smaller one
///   place=x,y client=w,h clientCursor=n clientTip=t ontop= icon= minimized=    of a form
///   cursor=n window=G popup=caption next=T    pointer, form, menu of the right button, Tab
///   typed=keys,text caret=n selected=t entry=i,t rowHeight=n line.property=value
///   action=property,value    of the menu row; also gone, bold, icon
///   dialog=what,value picked=name    of the file dialog that opens when `Ask` is clicked
///   opacity=x ticks
///   anything else is a property of the widget
[[nodiscard]] std::string Missing(LiveProgram& live, const std::string& name,
                                  const std::string& cell);

}  // namespace tarnwick::test
