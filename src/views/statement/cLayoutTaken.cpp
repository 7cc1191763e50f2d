#include "views/statement/cLayoutTaken.h"

#include "base/cText.h"
#include "import/read/modStatementFile.h"
#include "import/read/modStatementText.h"
#include "import/table/cTableMemory.h"
#include "import/table/modLayoutFile.h"

cLayoutTaken cLayoutTaken::File(const QString& path, cTableMemory& memory)
{
    const modStatementFile::cContent content = modStatementFile::Read(path);
    if (!content.Failure.isEmpty()) {
        return {{}, {}, content.Failure};
    }
    const modLayoutFile::cRead read = modLayoutFile::FromText(modStatementText::Decode(content.Bytes));
    if (!read.Fault.isEmpty()) {
        return {{}, {}, read.Fault};
    }
    const QString key = cTableMemory::KeyOf(read.Layout.Map.Names);
    return memory.SaveMap(key, read.Layout)
        ? cLayoutTaken{read.Layout.Profile, key, {}}
        : cLayoutTaken{{}, {}, cText::Tr("Der Aufbau konnte nicht gespeichert werden.")};
}
