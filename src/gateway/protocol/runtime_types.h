#pragma once

struct soap;

namespace parlexo::protocol {

/// The number under which the runtime knows text, the one type that it reads for us: every value arrives as
/// text and is converted afterwards, so that references work alike for all of them.
inline constexpr int textType = 1;

/// Reads the element at hand when a reference to it is waiting, or was met, with a known type; the number of
/// the type goes to `type`. Returns false with the context's error set otherwise.
[[nodiscard]] bool readReferencedElement(::soap& context, int* type);

}  // namespace parlexo::protocol
