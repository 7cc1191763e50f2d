#pragma once

class QLineEdit;

// Fields that may stay empty.
namespace modEmptyField {

// Lets the field's description for screen readers begin with what stands in it while it is empty: its placeholder, or
// that it is empty. Its tool tip follows; alone, the toolkit would tell that instead of the placeholder.
void Tell(QLineEdit& field);

} // namespace modEmptyField
