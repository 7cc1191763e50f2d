#include "model/modReceiptName.h"

#include "base/modDate.h"
#include "model/cEntryItem.h"
#include "model/modFlags.h"

#include <QUrl>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostOfText = 60; // four bytes each at most, so that day, digits and ending fit into 255

const QString forbidden = u"/\\:*?\"<>|"_s;

bool IsForbidden(QChar letter)
{
    return !letter.isPrint() || forbidden.contains(letter);
}

} // namespace

QStringList modReceiptName::Of(const cEntryItem& entry)
{
    return Read(modFlags::Get(entry.EntryFlags, Mark));
}

QStringList modReceiptName::Read(const QString& text)
{
    QStringList names;
    const QStringList parts = text.split(u',', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        const QString name = QUrl::fromPercentEncoding(part.toUtf8());
        if (IsSafe(name)) {
            names.append(name);
        }
    }
    return names;
}

// Lists ask for every line they paint, and hardly any entry has flags at all.
int modReceiptName::Count(const cEntryItem& entry)
{
    return entry.EntryFlags.contains(Mark) ? static_cast<int>(Of(entry).size()) : 0;
}

void modReceiptName::Set(cEntryItem& entry, const QStringList& names)
{
    entry.EntryFlags = modFlags::Set(entry.EntryFlags, Mark, Write(names));
}

QString modReceiptName::Write(const QStringList& names)
{
    QStringList parts;
    for (const QString& name : names) {
        parts.append(QString::fromLatin1(QUrl::toPercentEncoding(name)));
    }
    return parts.join(u',');
}

bool modReceiptName::IsSafe(const QString& name)
{
    return !name.isEmpty() && !name.startsWith(u'.') && std::none_of(name.begin(), name.end(), IsForbidden);
}

QString modReceiptName::Stem(const cEntryItem& entry)
{
    const QString text =
        entry.EntryDescription.isEmpty() ? entry.EntryCategory.section(u';', -1) : entry.EntryDescription;
    return Stem(modDate::ToIso(entry.EntryDate), text);
}

QString modReceiptName::Stem(const QString& day, const QString& words)
{
    QString text = words;
    std::replace_if(text.begin(), text.end(), IsForbidden, u' ');
    text = text.simplified().left(mostOfText);
    if (text.endsWith(u'.') || (!text.isEmpty() && text.back().isHighSurrogate())) {
        text.chop(1); // half a letter, or what one of the file systems cuts off
    }
    return QString(day + u' ' + (text.isEmpty() ? u"Beleg"_s : text)).trimmed();
}
