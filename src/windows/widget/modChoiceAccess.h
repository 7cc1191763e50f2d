#pragma once

// What screen readers get of a field in which something is chosen. The toolkit tells them the chosen text as the name
// of the field, because that is what they say again when another one is chosen; a name that the program gave it is lost
// beside it, and while nothing is chosen the label takes the text's place.
namespace modChoiceAccess {

// Makes every QComboBox tell its own name, if it has one, and then what stands in it: the chosen text, what it shows
// while nothing is chosen, or that it is empty. Needs the application; once is enough, more does no harm.
void Install();

} // namespace modChoiceAccess
