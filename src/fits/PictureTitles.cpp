#include "fits/PictureTitles.h"

#include <algorithm>

namespace norlaplan {
namespace {

constexpr PagePoint kNumberPlace{3.43, 5.0};
constexpr double kPictureTop = 5.0;
constexpr double kRiseAtLeft = 0.6;
constexpr double kRiseAtRight = 0.4;

}  // namespace

void setTitles(Graph& graph, const PictureTitles& titles) {
    graph.number = graphText(kNumberPlace, titles.number, 16.0, graphcolours::kDarkRed);
    graph.title = graphText(titles.titlePlace, titles.title, 14.0, graphcolours::kDarkBlue);
    graph.xTitle = graphText(titles.xPlace, titles.xTitle, 10.0, graphcolours::kDarkBlue);
    graph.yTitle = stackedGraphText(titles.yPlace, titles.yTitle, 10.0, graphcolours::kDarkBlue);
}

GraphText rangeCaption(double x, const std::string& text) {
    return graphText({x, 0.2}, text, 10.0, graphcolours::kGrey);
}

double labelRise(const Graph& graph, PagePoint value, bool left) {
    return std::min(left ? kRiseAtLeft : kRiseAtRight, kPictureTop - graph.place(value).y);
}

}  // namespace norlaplan
