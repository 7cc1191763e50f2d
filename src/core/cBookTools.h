#pragma once

class cAmountFormat;
class cClock;
class cDataAccess;
class cSettings;
class cUser;

// What nearly everything that works with an open book needs of it and of its surroundings. Made once, where the book is
// opened, and handed on by reference: all five stay the same objects when another file takes the place of the book.
struct cBookTools
{
    cDataAccess& Data;
    cSettings& Settings;
    const cAmountFormat& Format;
    cUser& User;
    const cClock& Clock;
};
