#pragma once

#include <QFunctionPointer>
#include <QString>

// Parts of the program that lie beside it as files of their own and are loaded when they are first needed: what they
// bring with them would take a good part of every start.
namespace modModule {

// Such a file: beside the program where it is built, in a folder of its own where it is installed.
[[nodiscard]] QString Path(const QString& file);

// A function of a module; null when the module is not there.
template <typename tFunction>
[[nodiscard]] tFunction Find(const QString& file, const char* function);
[[nodiscard]] QFunctionPointer Resolve(const QString& file, const char* function);

// What is said when such a file is not there.
[[nodiscard]] QString Missing(const QString& file);

} // namespace modModule

template <typename tFunction>
tFunction modModule::Find(const QString& file, const char* function)
{
    return reinterpret_cast<tFunction>(Resolve(file, function)); // the one form in which a module gives its functions
}
