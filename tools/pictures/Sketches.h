#pragma once

#include <QPainter>

#include "Section.h"

// The pictures of a style, each drawn into its area of logical size.

constexpr QSize kTypeSize(240, 160);
constexpr QSize kSketchSize(480, 320);
constexpr QSize kStartSize(480, 300);

/// The section alone.
void drawType(QPainter& painter, const Style& style);
/// The section with the loads that the style carries.
void drawLoads(QPainter& painter, const Style& style);
/// Both halves around the axis with bore, outside diameter and height.
void drawSizes(QPainter& painter, const Style& style);
/// A thin-section bearing seen along its axis, for the start screen.
void drawStart(QPainter& painter);
