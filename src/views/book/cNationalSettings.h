#pragma once

#include <QList>
#include <QObject>
#include <QString>

class cAmountFormat;
class cConfiguration;
struct cBookTools;

// The language of the program and the form of its numbers and amounts, as they can be chosen.
class cNationalSettings final : public QObject
{
    Q_OBJECT

public:
    // One item of a list: what is stored and what is shown.
    struct cOption
    {
        QString Stored;
        QString Shown;
    };

    // The stored texts.
    struct cFields
    {
        QString Language;
        QString Format;
        QString Currency; // empty: as the format has it
    };

    // What the program writes with certain fields.
    struct cPreview
    {
        QString Amount;
        QString Negative;
        QString Date;
    };

    // `format` is that of the tools, to be told of another culture.
    cNationalSettings(const cBookTools& tools, cConfiguration& configuration, cAmountFormat& format,
                      QObject* parent = nullptr);

    [[nodiscard]] static QList<cOption> Languages();
    [[nodiscard]] static QList<cOption> Formats();
    [[nodiscard]] static QList<cOption> Currencies();

    // The fields in force; the language is empty while the system's is followed.
    [[nodiscard]] cFields Current() const;
    [[nodiscard]] cPreview Preview(const cFields& fields) const;

    // Stores the fields. False, with a message, when the book refuses.
    [[nodiscard]] bool Save(const cFields& fields);

    // Stores another language alone; on a book that can only be read it holds until the program ends.
    void ChooseLanguage(const QString& language);

Q_SIGNALS:
    void CultureChanged();  // amounts on the screen are old
    void LanguageChanged(); // all texts on the screen are old

private:
    const cBookTools& m_tools;
    cConfiguration& m_configuration;
    cAmountFormat& m_format;
};
