#include "views/common/modUnsaved.h"

#include "base/cText.h"

eAnswer modUnsaved::Ask(cUser& user)
{
    return user.Ask({.Text = cText::Tr("Die Eingaben sind noch nicht gespeichert.\nMöchten Sie sie speichern?"),
                     .Title = cText::Tr("Nicht gespeichert"),
                     .Buttons = eButtons::YesNoCancel});
}
