#pragma once

#include <QString>
#include <QTranslator>

class cShell;

// The language of the user interface. German is what the program is written in; other languages are catalogues
// "kontorelle_<code>.qm" beside the program, and the toolkit brings its own texts.
class cLanguage
{
public:
    // Changes to the language with this code ("de", "en"); an empty or unknown one is German.
    void Use(const QString& code, const cShell& shell);

private:
    // The toolkit's catalogue leaves the German key of that name in English.
    class cGermanKeys final : public QTranslator
    {
    public:
        [[nodiscard]] bool isEmpty() const override { return false; }
        [[nodiscard]] QString translate(const char* context, const char* text, const char* note,
                                        int number) const override;
    };

    cGermanKeys m_keys;
    QTranslator m_program;
    QTranslator m_toolkit;
};
