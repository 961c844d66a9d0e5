// `FormAddItems`: the rows of a list, one a line.
#pragma once

class QWidget;

namespace tarnwick {

class FormAddItems;

/// Shows the items of one opening and hands back what they have become on OK.
void RunItemDialog(FormAddItems& logic, QWidget* parent);

}  // namespace tarnwick
