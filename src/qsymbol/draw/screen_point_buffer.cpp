#include "qsymbol/draw/screen_point_buffer.h"

namespace qsymbol {

ScreenPointBuffer& ScreenPointBuffer::Shared() {
    static ScreenPointBuffer buffer;
    return buffer;
}

} // namespace qsymbol
