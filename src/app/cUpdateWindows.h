#pragma once

class cConfiguration;
class cUpdateCheck;
class QWidget;
struct cBookTools;

// The update check with its window, as this edition of the program has it.
class cUpdateWindows
{
public:
    cUpdateWindows(const cBookTools& tools, cConfiguration& configuration)
        : m_tools(tools),
          m_configuration(configuration)
    {
    }

    // Looks and shows what came of it; where this edition cannot look, it says why.
    void Open(QWidget* parent);

    // A while after the start: asks once whether to look weekly, and looks when that is due. Only what is new is shown.
    void AfterStart();

    // Ends a look that waits for its answer, for a program that has to end.
    void Cancel();

private:
    const cBookTools& m_tools;
    cConfiguration& m_configuration;
    cUpdateCheck* m_looking = nullptr; // while it looks by itself
};
