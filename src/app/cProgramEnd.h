#pragma once

#include <QTimer>

#include <functional>

// Ends the program from wherever it is: closes what stands in the way, from the top, without waiting for answers (each
// question gets the one that changes nothing), and then does what is left to do.
class cProgramEnd final
{
public:
    struct cHooks
    {
        std::function<bool()> IsBusy; // something is being written and must not be torn apart
        std::function<void()> Finish; // nothing is in the way any more
    };

    explicit cProgramEnd(cHooks hooks);

    // Returns at once; what is in the way may have to unwind first.
    void Begin();
    [[nodiscard]] bool HasBegun() const { return m_hasBegun; }

private:
    void Step();

    cHooks m_hooks;
    QTimer tmrStep;
    bool m_hasBegun = false;
};
