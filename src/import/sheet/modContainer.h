#pragma once

#include <QByteArray>
#include <QStringView>

#include <optional>

// The container of binary office files: a small file system of sectors, in which the workbook is one file.
namespace modContainer {

[[nodiscard]] bool IsContainer(const QByteArray& bytes);

// The file of this name, wherever it lies; empty optional when it is missing or its sectors do not hang together.
[[nodiscard]] std::optional<QByteArray> Read(const QByteArray& bytes, QStringView name);

} // namespace modContainer
