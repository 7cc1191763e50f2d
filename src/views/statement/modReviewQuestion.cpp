#include "views/statement/modReviewQuestion.h"

#include "base/cText.h"
#include "base/modCount.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostExamples = 8;

QString Examples(const QStringList& lines)
{
    return modCount::Cut(lines, mostExamples).join(u'\n');
}

// Other doubts than about the category.
QStringList Doubts(const modReviewQuestion::cNumbers& numbers)
{
    QStringList doubts;
    if (numbers.Likely > 0) {
        doubts.append(cText::Tr("{0} wahrscheinlich schon im Haushaltsbuch", {QString::number(numbers.Likely)}));
    }
    if (numbers.Twice > 0) {
        doubts.append(cText::Tr("{0} vielleicht doppelt", {QString::number(numbers.Twice)}));
    }
    return doubts;
}

// What stays open, and why.
QString Left(const modReviewQuestion::cNumbers& numbers)
{
    QStringList left;
    if (numbers.Unknown > 0) {
        left.append(cText::Tr("{0} ohne passenden Vorschlag", {QString::number(numbers.Unknown)}));
    }
    left += Doubts(numbers);
    return left.isEmpty() ? QString() : cText::Tr("Offen bleiben: {0}.", {left.join(u", "_s)});
}

QString InBook(int count)
{
    return count == 1 ? cText::Tr("Einer der gezeigten Umsätze steht schon im Haushaltsbuch und wird zugeordnet.")
                      : cText::Tr("{0} der gezeigten Umsätze stehen schon im Haushaltsbuch und werden zugeordnet.",
                                  {QString::number(count)});
}

QString Sure(int count)
{
    return count == 1 ? cText::Tr("Einer der gezeigten Umsätze hat einen sicheren Vorschlag und wird neu gebucht.")
                      : cText::Tr("{0} der gezeigten Umsätze haben einen sicheren Vorschlag und werden neu gebucht.",
                                  {QString::number(count)});
}

// What would become of those that need a look, a line each; the category of most of them first.
QStringList Unsureness(const modReviewQuestion::cNumbers& numbers)
{
    QList<std::pair<int, QString>> categories;
    for (auto category = numbers.Categories.begin(); category != numbers.Categories.end(); ++category) {
        categories.append({category.value(), category.key()});
    }
    std::stable_sort(categories.begin(), categories.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    QStringList lines;
    if (numbers.Bare > 0) {
        lines.append(cText::Tr("{0} ohne bekannte Kategorie, also unter 'Allgemein'", {QString::number(numbers.Bare)}));
    }
    for (auto accounts = numbers.Transfers.begin(); accounts != numbers.Transfers.end(); ++accounts) {
        lines.append(
            cText::Tr("{0} vielleicht als Umbuchung {1}", {QString::number(accounts.value()), accounts.key()}));
    }
    for (const auto& [count, category] : std::as_const(categories)) {
        lines.append(cText::Tr("{0} vielleicht unter '{1}'", {QString::number(count), category}));
    }
    if (lines.size() > mostExamples) {
        lines = lines.mid(0, mostExamples) + QStringList(u"…"_s);
    }
    return lines + Doubts(numbers);
}

// What is done with those that need no look.
QString Certain(const modReviewQuestion::cNumbers& numbers)
{
    if (numbers.InBook + numbers.Sure == 0) {
        return cText::Tr("Keiner der gezeigten Umsätze hat einen sicheren Vorschlag.");
    }
    QStringList lines;
    if (numbers.InBook > 0) {
        lines.append(InBook(numbers.InBook));
    }
    if (numbers.Sure > 0) {
        lines.append(Sure(numbers.Sure));
    }
    return lines.join(u'\n');
}

} // namespace

cDecision modReviewQuestion::Unsure(const cNumbers& numbers)
{
    const int sure = numbers.InBook + numbers.Sure;
    const int unsure = numbers.Unknown + numbers.Likely + numbers.Twice;
    const QStringList values{QString::number(sure), QString::number(unsure), Unsureness(numbers).join(u'\n')};
    const QString all = cText::Tr("&Alle {0} buchen", {QString::number(sure + unsure)});
    if (sure == 0) {
        return {.Text =
                    cText::Tr("Keiner der {1} Umsätze hat einen sicheren Vorschlag:\n{2}\nWas soll geschehen?", values),
                .Title = cText::Tr("Umsätze buchen"),
                .Options = {cText::Tr("&Einzeln ansehen"), all}};
    }
    return {.Text = unsure == 1
                ? cText::Tr("Einer der Umsätze hat keinen sicheren Vorschlag:\n{2}\nWas soll geschehen?", values)
                : cText::Tr("{1} der Umsätze haben keinen sicheren Vorschlag:\n{2}\nWas soll geschehen?", values),
            .Title = cText::Tr("Umsätze buchen"),
            .Options = {sure == 1 ? cText::Tr("Nur den &sicheren buchen")
                                  : cText::Tr("Nur die {0} &sicheren buchen", values),
                        all}};
}

cDecision modReviewQuestion::Matches(const QStringList& lines)
{
    const bool isOne = lines.size() == 1;
    const QStringList values{QString::number(lines.size()), Examples(lines)};
    cDecision decision{
        .Text = isOne ? cText::Tr("Zu diesem Umsatz gibt es schon einen Eintrag:\n{1}\nWas soll geschehen?", values)
                      : cText::Tr("Zu {0} der Umsätze gibt es schon Einträge:\n{1}\nWas soll geschehen?", values),
        .Title = cText::Tr("Umsätze buchen"),
        .Options = {cText::Tr("Den &vorhandenen zuordnen"), cText::Tr("&Neu anlegen"), cText::Tr("&Offen lassen")}};
    if (!isOne) {
        decision.Options.append(cText::Tr("&Einzeln entscheiden"));
    }
    return decision;
}

cQuestion modReviewQuestion::Twins(const QStringList& lines)
{
    const QStringList values{QString::number(lines.size()), Examples(lines)};
    return {.Text = lines.size() == 1
                ? cText::Tr("Zu einem der Umsätze gibt es noch einen, der derselbe sein kann, zum Beispiel aus einer "
                            "Datei in einem anderen Format:\n{1}\nSoll er offen bleiben? Bei Nein wird auch er "
                            "gebucht.",
                            values)
                : cText::Tr("Zu {0} der Umsätze gibt es noch einen, der derselbe sein kann, zum Beispiel aus einer "
                            "Datei in einem anderen Format:\n{1}\nSollen diese offen bleiben? Bei Nein "
                            "werden auch sie gebucht.",
                            values),
            .Title = cText::Tr("Umsätze buchen"),
            .Buttons = eButtons::YesNoCancel};
}

cQuestion modReviewQuestion::Accept(const cNumbers& numbers)
{
    const bool isAny = numbers.InBook + numbers.Sure > 0;
    QStringList lines{Certain(numbers), Left(numbers), isAny ? cText::Tr("Soll das so geschehen?") : QString()};
    lines.removeAll(QString());
    return {.Text = lines.join(u'\n'),
            .Title = cText::Tr("Vorschläge annehmen"),
            .Tone = isAny ? eTone::Question : eTone::Information};
}

cDecision modReviewQuestion::Alike(const QString& category, int count)
{
    const QStringList values{category, QString::number(count)};
    return {
        .Text = count == 1
            ? cText::Tr("Noch ein offener Umsatz ist von demselben Empfänger.\nSoll auch er '{0}' bekommen?", values)
            : cText::Tr("Noch {1} offene Umsätze sind von demselben Empfänger.\nSollen auch sie '{0}' bekommen?",
                        values),
        .Title = cText::Tr("Kategorie gewählt"),
        .Options = {cText::Tr("&Auch diese"), cText::Tr("&Immer so"), cText::Tr("&Nur dieser")},
        .Default = 2};
}
