#pragma once

class cStaging;
struct cStatementRead;

// Books hold rows that were staged without counterparty, before the reader of their format knew it.
namespace modNamelessRows {

// Takes the counterparty from the rows of a file that are staged without it, so that they are known again. A staged row
// stands for one row of the file, and for those that are equal to that one: two purchases of one day that differ in
// nothing but the shop stay two. Asked before the first row of the file is staged.
void UseIn(cStatementRead& read, cStaging& staging);

} // namespace modNamelessRows
