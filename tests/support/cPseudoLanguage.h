#pragma once

#include <QCoreApplication>
#include <QString>
#include <QTranslator>

// A language that nobody speaks: every text of the program as it is, but accented, in brackets and about 40 % longer.
// What stands on a window without brackets has bypassed the translation, and what is cut would be cut in a language
// with longer words than German.
class cPseudoLanguage final : public QTranslator
{
public:
    // Longer by doubled vowels; placeholders, mnemonics and markup stay as they are.
    [[nodiscard]] static QString Of(const QString& german)
    {
        if (german.trimmed().isEmpty()) {
            return german;
        }
        qsizetype missing = german.size() * 2 / 5 - 2; // without the brackets
        QString text(u'[');
        QChar end; // of a placeholder or of markup
        for (const QChar c : german) {
            end = c == u'{' ? u'}' : c == u'<' ? u'>' : end;
            const QChar accented = end.isNull() ? Accented(c) : c;
            const bool isDoubled = accented != c && missing > 0;
            text += isDoubled ? QString(2, accented) : QString(accented);
            missing -= isDoubled ? 1 : 0;
            end = c == end ? QChar() : end;
        }
        return text + QString(qMax<qsizetype>(missing, 0), u'~') + u']';
    }

    [[nodiscard]] bool isEmpty() const override { return false; }

    [[nodiscard]] QString translate(const char* context, const char* source, const char* /*disambiguation*/,
                                    int /*n*/) const override
    {
        return qstrcmp(context, "cText") == 0 ? Of(QString::fromUtf8(source)) : QString(); // null: not ours
    }

private:
    static QChar Accented(QChar c)
    {
        constexpr QStringView plain = u"aeiouAEIOUäöü";
        constexpr QStringView accented = u"áéíóúÁÉÍÓÚåøŭ";
        const qsizetype at = plain.indexOf(c);
        return at < 0 ? c : accented[at];
    }
};
