#pragma once

#include <QStringList>

class QMimeData;

// What was dragged into a window.
namespace modDrop {

// Paths of the files; folders and addresses are passed over.
[[nodiscard]] QStringList Files(const QMimeData& data);

} // namespace modDrop
