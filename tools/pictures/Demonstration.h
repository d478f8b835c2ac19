#pragma once

#include <QPainter>
#include <QSize>

// How clearance lets the inner ring move along the axis and tilt: thirteen pictures of one bearing.

constexpr QSize kDemonstrationSize(480, 400);
constexpr int kDemonstrationPictures = 13;

/// The picture of a number from 1 to 13. In 1 to 5 the clearance opens, from 5 to 9 the inner ring moves
/// along the axis until it touches, and from 5 it tilts: to one side in 11 and 10, to the other in 12 and 13.
void drawDemonstration(QPainter& painter, int number);
