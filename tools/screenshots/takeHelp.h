#pragma once

class cCamera;

// The manual, "Über Kontorelle", the game, and what a start says after a crash or with a draft.
bool TakeHelp(cCamera& camera);
