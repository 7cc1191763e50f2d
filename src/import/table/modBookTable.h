#pragma once

struct cReadOptions;
struct cStatementRead;
struct cTableLayout;
class cTable;

// The list of entries that this program itself writes as a table: each row names its account and its category.
namespace modBookTable {

// By the names of the columns, as they are written in German, in English or in the language of the user. Whatever was
// said about the columns: a transfer read as a statement has it would be income.
[[nodiscard]] bool IsBook(const cTable& table, const cTableLayout& layout);

// A transfer becomes a row of each of its two accounts. Lines of sums are passed over.
[[nodiscard]] cStatementRead Read(const cTable& table, const cTableLayout& layout);

} // namespace modBookTable
