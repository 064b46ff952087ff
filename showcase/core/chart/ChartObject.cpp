#include "ChartObject.h"

#include <cstdlib>

namespace Desk {

namespace {

constexpr unsigned int FirstPart = 0x000001;
constexpr unsigned int LineTool = 0x0000FF;
constexpr unsigned int FirstLine = 0x000100;
constexpr unsigned int BehindLines = 0x1000000;

} // namespace

unsigned int idOf(const ChartObject& object) {
    const auto index = static_cast<unsigned int>(object.index);
    switch (object.kind) {
    case ChartObject::Kind::Part:
        return FirstPart + index;
    case ChartObject::Kind::Line:
        return index < BehindLines - FirstLine ? FirstLine + index : 0;
    case ChartObject::Kind::LineTool:
        return LineTool;
    case ChartObject::Kind::Nothing:
        break;
    }
    return 0;
}

ChartObject objectWithId(unsigned int id) {
    if (id >= FirstPart && id < FirstPart + ChartPartCount)
        return {ChartObject::Kind::Part, id - FirstPart};
    if (id == LineTool)
        return {ChartObject::Kind::LineTool, 0};
    if (id >= FirstLine && id < BehindLines)
        return {ChartObject::Kind::Line, id - FirstLine};
    return {};
}

ChartObject objectNear(int x, int y, int reach, const std::function<unsigned int(int x, int y)>& idAt) {
    ChartObject nearest;
    for (int ring = 0; ring <= reach; ++ring) {
        for (int dy = -ring; dy <= ring; ++dy) {
            const int step = std::abs(dy) == ring || ring == 0 ? 1 : 2 * ring;
            for (int dx = -ring; dx <= ring; dx += step) {
                const ChartObject object = objectWithId(idAt(x + dx, y + dy));
                if (object.kind == ChartObject::Kind::Line)
                    return object;
                if (nearest.kind == ChartObject::Kind::Nothing)
                    nearest = object;
            }
        }
    }
    return nearest;
}

} // namespace Desk
