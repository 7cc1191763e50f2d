#include "views/report/modReportLink.h"

#include "base/modDate.h"
#include "model/cTemplateItem.h"
#include "model/modWord.h"

#include <QStringList>

#include <array>
#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString editCategory = u"EDITCATEGORY://"_s;
const QString showEntries = u"SHOWENTRIES://"_s;
const QString page = u"HTTP://"_s;

constexpr QChar separator = u'|';

// What stands for a character that would be read as something else. The percent sign comes first, because the others
// hold one.
const std::array<std::pair<QString, QChar>, 4>& Codes()
{
    static const std::array<std::pair<QString, QChar>, 4> codes{
        std::pair{u"%25"_s, QChar(u'%')}, std::pair{u"%20"_s, QChar(u' ')}, std::pair{u"%2F"_s, QChar(u'/')},
        std::pair{u"%7C"_s, separator}};
    return codes;
}

// Names stay as they are as far as they can be read back: only what separates fields, a "/" at the end, and what looks
// like a code is written as a code.
QString Encoded(QString text)
{
    for (const auto& [code, character] : Codes()) {
        text.replace(code, u"%25"_s + code.mid(1));
    }
    text.replace(separator, u"%7C"_s);
    return text.endsWith(u'/') ? text.chopped(1) + u"%2F"_s : text;
}

QString Decoded(const QString& text)
{
    QString decoded;
    for (qsizetype i = 0; i < text.size(); ++i) {
        QChar next = text.at(i);
        for (const auto& [code, character] : Codes()) {
            if (next == u'%' && QStringView(text).mid(i).startsWith(code)) {
                next = character;
                i += code.size() - 1;
                break;
            }
        }
        decoded.append(next);
    }
    return decoded;
}

// What follows the prefix, without a "/" at the end that an HTML engine may have put there; none for another prefix.
std::optional<QString> RestOf(const QString& link, const QString& prefix)
{
    if (!link.startsWith(prefix, Qt::CaseInsensitive)) {
        return std::nullopt;
    }
    const QString rest = link.mid(prefix.size());
    return rest.endsWith(u'/') ? rest.chopped(1) : rest;
}

// "Wohnung; " of a group's line has an empty second half; its ";" is cut off whether or not the blank has come along.
// Other blanks belong to the name.
QString WithoutEmptyHalf(const QString& path)
{
    const QString trimmed = path.trimmed();
    return trimmed.endsWith(u';') ? path.left(path.lastIndexOf(u';')) : path;
}

cReportNode NodeOf(eReportKind kind, const QString& path)
{
    cReportNode node{kind, modTemplate::MainOf(path)};
    if (const QString category = modTemplate::SubOf(path); !category.isEmpty()) {
        node.Category = category;
    }
    return node;
}

modReportLink::cLink ReadEntries(const QString& rest)
{
    const QStringList fields = rest.split(separator);
    if (fields.size() != 5) {
        return {};
    }
    const bool isIncome = fields.at(0) == modWord::Einnahmen;
    if (!isIncome && fields.at(0) != modWord::Ausgaben) {
        return {};
    }
    const eReportKind kind = isIncome ? eReportKind::Income : eReportKind::Expense;
    modReportLink::cShowEntries link;
    link.Range = {modDate::FromGerman(fields.at(1)), modDate::FromGerman(fields.at(2))};
    const QString account = Decoded(fields.at(3));
    link.Account = account == modWord::AlleKonten ? QString() : account;
    link.Path = WithoutEmptyHalf(Decoded(fields.at(4)));
    link.Node = NodeOf(kind, link.Path);
    link.Cut = NodeOf(kind, WithoutEmptyHalf(link.Path.section(u'(', 0, 0).trimmed()));
    return link;
}

} // namespace

modReportLink::cLink modReportLink::Parse(const QString& link)
{
    if (const std::optional<QString> rest = RestOf(link, editCategory)) {
        return cEditCategory{Decoded(*rest)};
    }
    if (const std::optional<QString> rest = RestOf(link, showEntries)) {
        return ReadEntries(*rest);
    }
    return link.startsWith(page, Qt::CaseInsensitive) ? cLink(cOpenPage{link}) : cLink();
}

QString modReportLink::ShowEntries(const cLine& line)
{
    if (line.Links == eReportLinks::Off) {
        return showEntries + QString(4, separator);
    }
    const QString account = line.Account.isEmpty() ? modWord::AlleKonten : Encoded(line.Account);
    return showEntries
        + QStringList{line.Kind == eReportKind::Income ? modWord::Einnahmen : modWord::Ausgaben,
                      modDate::ToGerman(line.Range.Start), modDate::ToGerman(line.Range.End), account,
                      Encoded(line.Group + u"; "_s + line.Category)}
              .join(separator);
}
