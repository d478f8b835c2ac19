#include "deflection/DeflectionTable.h"

#include "numbers/FormatNumber.h"

namespace norlaplan {

std::string deflectionTable(const DeflectionGraphData& data) {
    std::string table = data.xTitle + "\t" + data.yTitle + "\n";
    for (const PagePoint& point : data.points)
        table += FormatNumber(point.x, "0.0000") + "\t" + FormatNumber(point.y, "0.00000000") + "\n";
    return table;
}

}  // namespace norlaplan
