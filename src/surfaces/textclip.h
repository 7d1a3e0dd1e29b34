// Which letters of a text have to be painted. A text is cut only where it leaves what is painted,
// or where it is longer than any that a plate has: the toolkit lays out a text of a megabyte in
// seconds.
#pragma once

#include <vector>

#include <QRectF>
#include <QString>

namespace vernacle {

class Typeface;

// In units of the reference font, from the text's top left corner.
struct TextView {
    QRectF painted;
    QRectF seen;
};

struct TextPart {
    QString text;
    double offset = 0; // of its first letter from the text's start, in the same units
};

std::vector<TextPart> PartsInView(const QString& text, const Typeface& face, const TextView& view);

} // namespace vernacle
