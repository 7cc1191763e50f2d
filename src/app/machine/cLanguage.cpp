#include "app/machine/cLanguage.h"

#include "base/cShell.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

using namespace Qt::Literals::StringLiterals;

QString cKeyNames::translate(const char* context, const char* source, const char* /*disambiguation*/, int /*n*/) const
{
    const bool isEnter = qstrcmp(source, "Return") == 0 || qstrcmp(source, "Enter") == 0;
    return isEnter && qstrcmp(context, "QShortcut") == 0 ? u"Eingabe"_s : QString(); // null: ask the next one
}

void cLanguage::Use(const QString& code, const cShell& shell)
{
    m_code = code;
    QCoreApplication::removeTranslator(&m_program);
    QCoreApplication::removeTranslator(&m_toolkit);
    QCoreApplication::removeTranslator(&m_keys);
    const bool isForeign =
        !code.isEmpty() && code != u"de" && m_program.load(shell.InstalledFile(u"kontorelle_%1.qm"_s.arg(code)));
    if (isForeign) {
        QCoreApplication::installTranslator(&m_program);
    }
    // Days and months in calendars and groups; amounts have their own culture.
    QLocale::setDefault(isForeign ? QLocale(code) : QLocale(QLocale::German, QLocale::Germany));
    const QString toolkit = u"qtbase_"_s + (isForeign ? code : u"de"_s);
    if (m_toolkit.load(toolkit, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&m_toolkit);
    }
    if (!isForeign) {
        QCoreApplication::installTranslator(&m_keys); // asked before the toolkit's own
    }
}
