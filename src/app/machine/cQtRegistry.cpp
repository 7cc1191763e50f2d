#include "app/machine/cQtRegistry.h"

#include <QDir>
#include <QSettings>
#include <QVariant>

using namespace Qt::Literals::StringLiterals;

std::unique_ptr<QSettings> cQtRegistry::Open(eRegistryScope scope, const QString& key) const
{
    const bool isUser = scope == eRegistryScope::User;
    if (!m_profile.isEmpty() && !isUser) {
        return nullptr;
    }
    std::unique_ptr<QSettings> store;
    if (!m_profile.isEmpty()) {
        store = std::make_unique<QSettings>(QDir(m_profile).absoluteFilePath(u"registry.ini"_s), QSettings::IniFormat);
    } else {
#ifdef Q_OS_WIN
        const QString root = isUser ? u"HKEY_CURRENT_USER\\"_s : u"HKEY_LOCAL_MACHINE\\"_s;
        return std::make_unique<QSettings>(root + key, QSettings::NativeFormat);
#else
        store =
            std::make_unique<QSettings>(QSettings::IniFormat, isUser ? QSettings::UserScope : QSettings::SystemScope,
                                        u"Veltrino Kontorelle"_s, u"registry"_s);
#endif
    }
    store->setFallbacksEnabled(false); // each scope answers for itself: the order of reading is the caller's
    store->beginGroup(QString(key).replace(u'\\', u'/'));
    return store;
}

QString cQtRegistry::Read(eRegistryScope scope, const QString& key, const QString& name) const
{
    const std::unique_ptr<QSettings> store = Open(scope, key);
    return store ? store->value(name).toString() : QString();
}

bool cQtRegistry::Write(const QString& key, const QString& name, const QString& value)
{
    const std::unique_ptr<QSettings> store = Open(eRegistryScope::User, key);
    store->setValue(name, value);
    store->sync();
    return store->status() == QSettings::NoError;
}

bool cQtRegistry::Delete(const QString& key, const QString& name)
{
    const std::unique_ptr<QSettings> store = Open(eRegistryScope::User, key);
    store->remove(name);
    store->sync();
    return store->status() == QSettings::NoError;
}
