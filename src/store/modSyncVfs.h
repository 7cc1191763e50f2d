#pragma once

// A layer between SQLite and the files of the system that keeps the order in which the disk gets the writes. The
// statements of a book run with "PRAGMA synchronous=OFF", with which SQLite never waits for the disk: a power cut could
// then leave new pages without the journal that takes them back, and the book would be unreadable. So this layer syncs
// the rollback journal before the first page of the file is overwritten, and the file before the journal goes, which is
// the order of https://www.sqlite.org/atomiccommit.html. What is committed is on the disk.
namespace modSyncVfs {

// The name to open a connection with. The first call puts the layer over the default way to the files at that time.
[[nodiscard]] const char* Name();

} // namespace modSyncVfs
