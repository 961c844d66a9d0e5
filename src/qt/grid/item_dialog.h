// `FormAddItems`: the rows of a list, one a line.
#pragma once

class QWidget;

namespace tarnwick {

class DesignForm;
class MDIForm1;

/// Edits the items of the list selected on a form.
void RunItemDialog(MDIForm1& shell, DesignForm& form, QWidget* parent);

}  // namespace tarnwick
