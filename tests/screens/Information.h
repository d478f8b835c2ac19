#pragma once

#include <QBuffer>
#include <QImage>

#include "screens/Program.h"

namespace norlaplan::testing {

/// A picture of one colour in a file format that Qt writes.
inline std::string pictureOf(QSize size, const QColor& colour, const char* format) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes.toStdString();
}

inline std::string helpPage(int number) {
    return "{\\rtf1\\ansi Page of topic " + std::to_string(number) + "\\par}";
}

/// The text file of two product lines beside the two that the menu always has.
inline constexpr const char* kProductLines =
    "[Metric Series]\nmetrics.jpg\nSizes in millimeters.\n\nWith tables.\n"
    "[Stainless]\nsteel.jpg\nFor wet\nplaces.\n"
    "[Broken]\nbroken.jpg\nIts picture is none.\n"
    "[Custom]\ncustom.jpg\nMade for you.\n";

/// Puts short pages, plain pictures and office documents of the test's own into the program folder, and the
/// numbers and texts that the forms show them by into its record.
inline void giveInformation(Program& program) {
    for (int topic = 1; topic <= 21; ++topic)
        program.give("help/HELP" + std::to_string(topic) + ".RTF", helpPage(topic));
    program.give("help/INTRO.RTF", "{\\rtf1\\ansi The catalog begins\\par}");
    program.give("icons/onmoniter.ico", pictureOf({16, 16}, Qt::yellow, "ICO"));
    program.give("icons/offmoniter.ico", pictureOf({16, 16}, Qt::black, "ICO"));
    program.give("bearing pictures/Product Lines.txt", kProductLines);
    program.give("bearing pictures/metrics.jpg", pictureOf({400, 300}, Qt::red, "JPG"));
    program.give("bearing pictures/steel.jpg", pictureOf({300, 400}, Qt::green, "JPG"));
    program.give("bearing pictures/custom.jpg", pictureOf({80, 60}, Qt::blue, "JPG"));
    program.give("bearing pictures/broken.jpg", "no picture");
    program.take("neds Pictures");
    program.give("neds Pictures/START.JPG", pictureOf({400, 300}, Qt::red, "JPG"));
    program.give("neds Pictures/gimbal.jpg", pictureOf({1600, 1200}, Qt::green, "JPG"));
    program.give("neds Pictures/Radar.jpg", pictureOf({300, 600}, Qt::blue, "JPG"));
    program.give("neds Pictures/notes.txt", "no picture");
    program.give("training/varden.pps", "slides");
    program.give("training/Metric Bearings.xls", "cells");
    program.state.helpTopic = 1;
    program.state.otherBearingText = "Sizes in millimeters.";
    program.state.otherBearingPicture = "\\bearing pictures\\metrics.jpg";
}

}  // namespace norlaplan::testing
