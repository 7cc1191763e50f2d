#pragma once

class cConfiguration;
struct cBookTools;

// Whether the program looks for a new version by itself, once a week. It does so only after the user has said yes.
class cUpdateSchedule
{
public:
    cUpdateSchedule(const cBookTools& tools, cConfiguration& configuration)
        : m_tools(tools),
          m_configuration(configuration)
    {
    }

    [[nodiscard]] bool IsWeekly() const;
    void SetWeekly(bool isWeekly);

    // Asks once in the life of an installation whether to look, and not before the book has been in use for a week.
    void AskOnce();

    // True when the user wants it and the last look was a week ago.
    [[nodiscard]] bool IsDue() const;
    void Looked(); // today

private:
    const cBookTools& m_tools;
    cConfiguration& m_configuration;
};
