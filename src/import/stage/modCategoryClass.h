#pragma once

class cDataAccess;
struct cStatementRead;
enum class eStatementFormat;

// QIF puts a class of the user behind a category: "Urlaub:Reisen/Italien".
namespace modCategoryClass {

// Takes it off, unless the book has a category that is called so.
void CutFrom(cStatementRead& read, eStatementFormat kind, cDataAccess& data);

} // namespace modCategoryClass
