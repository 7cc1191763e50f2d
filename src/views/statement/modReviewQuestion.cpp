#include "views/statement/modReviewQuestion.h"

#include "base/cText.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostExamples = 8;

QString Examples(const QStringList& lines)
{
    return lines.mid(0, mostExamples).join(u'\n') + (lines.size() > mostExamples ? u"\n…"_s : QString());
}

// What stays open, and why.
QString Left(const modReviewQuestion::cNumbers& numbers)
{
    QStringList left;
    if (numbers.Unknown > 0) {
        left.append(cText::Tr("{0} ohne passenden Vorschlag", {QString::number(numbers.Unknown)}));
    }
    if (numbers.InBook > 0) {
        left.append(cText::Tr("{0} wahrscheinlich schon im Haushaltsbuch", {QString::number(numbers.InBook)}));
    }
    if (numbers.Twice > 0) {
        left.append(cText::Tr("{0} vielleicht doppelt", {QString::number(numbers.Twice)}));
    }
    return left.isEmpty() ? QString() : cText::Tr("Offen bleiben: {0}.", {left.join(u", "_s)});
}

QString Certain(int count)
{
    if (count == 0) {
        return cText::Tr("Keiner der gezeigten Umsätze hat einen sicheren Vorschlag.");
    }
    return count == 1
        ? cText::Tr("Ein gezeigter Umsatz hat einen sicheren Vorschlag. Soll er so gebucht werden?")
        : cText::Tr("{0} der gezeigten Umsätze haben einen sicheren Vorschlag. Sollen sie alle so gebucht werden?",
                    {QString::number(count)});
}

} // namespace

cQuestion modReviewQuestion::Matches(const QStringList& lines)
{
    const QStringList values{QString::number(lines.size()), Examples(lines)};
    return {.Text = lines.size() == 1
                ? cText::Tr("Von den markierten Umsätzen gehört wahrscheinlich einer zu einem Eintrag, den es schon "
                            "gibt:\n{1}\nSoll er offen bleiben? Bei Nein wird auch daraus ein neuer Eintrag.",
                            values)
                : cText::Tr("Von den markierten Umsätzen gehören wahrscheinlich {0} zu Einträgen, die es schon "
                            "gibt:\n{1}\nSollen sie offen bleiben? Bei Nein werden auch daraus neue Einträge.",
                            values),
            .Title = cText::Tr("Umsätze buchen"),
            .Buttons = eButtons::YesNoCancel};
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
    return {.Text = QString(Certain(numbers.Certain) + u'\n' + Left(numbers)).trimmed(),
            .Title = cText::Tr("Vorschläge annehmen"),
            .Tone = numbers.Certain == 0 ? eTone::Information : eTone::Question};
}
