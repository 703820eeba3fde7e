#pragma once

#include <tuple>
#include <type_traits>
#include <utility>

/// How `Services::With` finds the place of a part: by its type alone.
namespace platform {

/// Whether a part can stand where a service stands. An abstract class fits its own place, and what
/// is declared only, without its bases, fits none.
template <class Part, class Service>
inline constexpr bool Fits = std::is_convertible_v<Part*, Service*>;

/// How many of a row of services a part can stand for.
template <class Part, class... Services>
constexpr int PlacesIn(std::type_identity<std::tuple<Services&...>> /*row*/) {
    return (0 + ... + static_cast<int>(Fits<Part, Services>));
}

/// The type of a machine's `Row`, wrapped so that none has to be made.
template <class Machine>
using RowOf = std::type_identity<decltype(std::declval<const Machine&>().Row())>;

/// A part that stands for just one service of a machine.
template <class Part, class Machine>
concept PartOf = (PlacesIn<Part>(RowOf<Machine>()) == 1);

template <class Service>
constexpr Service& ChosenPart(Service& own) {
    return own;
}

/// The first of the parts that fits, else the machine's own service. All is decided as it is
/// compiled.
///
///     ChosenPart<Files>(own.FileSystem, dialogs, memoryFiles)  // memoryFiles
///     ChosenPart<Files>(own.FileSystem, dialogs)               // own.FileSystem
template <class Service, class Part, class... Parts>
constexpr Service& ChosenPart(Service& own, Part& part, Parts&... parts) {
    if constexpr (Fits<Part, Service>) {
        static_assert(!(Fits<Parts, Service> || ...), "two parts for one service");
        return part;
    } else {
        return ChosenPart(own, parts...);
    }
}

}  // namespace platform
