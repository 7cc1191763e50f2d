#pragma once

// What is done when the program breaks down.
namespace modCrash {

// From now on a crash leaves the text on this open file before the program ends as it would have anyway. Both stay
// valid for as long as the program lives.
void Watch(int descriptor, const char* text);

} // namespace modCrash
