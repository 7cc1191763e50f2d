#pragma once

#include <QString>
#include <QTranslator>

class cShell;

// German names of keys that the toolkit leaves in English: "Strg+Eingabe" instead of "Strg+Return", in menus and hints.
class cKeyNames final : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* context, const char* source, const char* disambiguation,
                                    int n) const override;
};

// The language of the user interface. German is what the program is written in; other languages are catalogues
// "kontorelle_<code>.qm" beside the program, and the toolkit brings its own texts.
class cLanguage
{
public:
    // Changes to the language with this code ("de", "en"); an empty or unknown one is German.
    void Use(const QString& code, const cShell& shell);

    // The code that was asked for last.
    [[nodiscard]] const QString& Code() const { return m_code; }

private:
    QString m_code;
    QTranslator m_program;
    QTranslator m_toolkit;
    cKeyNames m_keys;
};
