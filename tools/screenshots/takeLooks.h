#pragma once

class cCamera;

// Colours and pictures of main categories everywhere they are shown. False when something is missing.
bool TakeLooks(cCamera& camera);
