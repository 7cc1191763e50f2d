#pragma once

class cDataAccess;
struct cStatementRead;
enum class eStatementFormat;

// QIF puts a class of the user behind a category, "Urlaub:Reisen/Italien", or behind the account of a transfer, where
// some books have the category.
namespace modCategoryClass {

// Takes it off, unless the book has a category that is called so. Behind an account it is one as well where it has
// levels or where another row of the file names it.
void CutFrom(cStatementRead& read, eStatementFormat kind, cDataAccess& data);

} // namespace modCategoryClass
