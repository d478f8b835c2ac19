#pragma once

#include <optional>

#include "documents/Document.h"
#include "loaddist/ContactSection.h"
#include "loaddist/DrawingWindow.h"
#include "state/Ports.h"

namespace norlaplan {

/// The keys that move and zoom the drawing, with the platform's codes.
enum class ViewKey { PageUp = 33, PageDown = 34, Left = 37, Up = 38, Right = 39, Down = 40 };

/// The area that the drawing opens with, inches.
DrawingArea openingArea(const ContactSection& section);
/// The area that shows the whole drawing.
DrawingArea wholeArea(const ContactSection& section);
/// The area after a key; the zoom stays between a tenth and ten times the opening area.
DrawingArea areaAfterKey(const DrawingArea& area, ViewKey key, const ContactSection& section);
/// The area under a frame between two places of the page, when the frame has an extent.
std::optional<DrawingArea> areaOfFrame(const WindowScale& window, PagePoint from, PagePoint to);

/// Draws grooves, corners and shoulder, contact line and ellipse, the land between ellipse and groove's edge,
/// the contact angle, the shoulder's diameter and the ring's outline. Line weights and types are those of the
/// page at every zoom, and no dimension lies on a line.
void drawContact(const ContactSection& section, DrawingWindow& window);

/// The check as a printed page: both rows' texts and the whole drawing.
void printContactCheck(const ProgramState& state, ClockPort& clock, const ContactCheck& check,
                       Canvas& canvas);

/// The page as a document; there is no RTF form. It reads the state when it is drawn.
Document contactDocument(const ProgramState& state, const ContactCheck& check, ClockPort& clock);

}  // namespace norlaplan
