#pragma once

#include <QString>

class cConfiguration;
class cSettingKey;
class cSettings;

// Where the main window stands and how its lists are laid out, from one start to the next.
class cWindowMemory
{
public:
    enum class eWindow { Normal, Minimised, Maximised }; // stored as a number

    struct cPlacement
    {
        int Left = 0;
        int Top = 0;
        int Width = 0; // 0 when nothing usable is stored
        int Height = 0;
        eWindow State = eWindow::Normal;
    };

    // Both outlive the memory.
    cWindowMemory(cSettings& settings, cConfiguration& configuration)
        : m_settings(settings),
          m_configuration(configuration)
    {
    }

    void SavePlacement(const cPlacement& placement);
    [[nodiscard]] cPlacement Placement() const;

    // Layout of a list, as its window wrote it.
    void SaveLayout(const cSettingKey& key, const QString& layout);
    [[nodiscard]] QString Layout(const cSettingKey& key) const;

private:
    cSettings& m_settings;
    cConfiguration& m_configuration;
};
