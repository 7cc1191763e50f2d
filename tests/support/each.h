#pragma once

#include <QList>

#include <functional>
#include <type_traits>

// What a function, or a member, gives of each of them.
template <typename tList, typename tOf>
auto Each(const tList& list, tOf of)
{
    QList<std::decay_t<std::invoke_result_t<tOf, decltype(*list.begin())>>> each;
    for (const auto& item : list) {
        each.append(std::invoke(of, item));
    }
    return each;
}
