#pragma once

class cCamera;

// Bank transactions in groups, with one that may be there twice; the window for those of one import, and the choice of
// a category for several. False when the book could not be made.
[[nodiscard]] bool TakeReview(cCamera& camera);
