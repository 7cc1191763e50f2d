#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QString>

// Whether the desktop wants programs to be light or dark: the portal's setting on the session bus, asked once and
// followed from then on. Where no portal answers, nothing is known.
class cDesktopTone final : public QObject
{
    Q_OBJECT

public:
    enum class eTone { Unknown, Light, Dark };

    explicit cDesktopTone(const QDBusConnection& bus, QObject* parent = nullptr);

    [[nodiscard]] eTone Tone() const { return m_tone; }

Q_SIGNALS:
    void ToneChanged();

private Q_SLOTS:
    void TakeChange(const QString& space, const QString& key, const QDBusVariant& value);

private:
    void Ask();
    void Take(const QVariant& value);

    QDBusConnection m_bus;
    eTone m_tone = eTone::Unknown;
};
