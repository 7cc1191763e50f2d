#pragma once

#include <QStringView>

// How alike two texts are.
namespace modSimilar {

// From 0 (nothing in common) to 1 (the same but for upper and lower case): twice the number of characters that match,
// divided by the characters of both texts. Matching characters are those of the longest run that both texts hold, and
// those found in the same way on its left and on its right. Texts whose lengths differ by more than a quarter of both
// lengths together are 0. Not for use from several threads.
[[nodiscard]] double Similarity(QStringView a, QStringView b);

} // namespace modSimilar
