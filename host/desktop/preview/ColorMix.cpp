#include "ColorMix.h"

namespace host::desktop {

QColor mix(const QColor& one, const QColor& other, double share)
{
    const auto part = [share](int left, int right) {
        return static_cast<int>(left * share + right * (1 - share));
    };
    return {part(one.red(), other.red()), part(one.green(), other.green()), part(one.blue(), other.blue())};
}

} // namespace host::desktop
