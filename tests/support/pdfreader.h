// What stands on the page of a PDF, read back by Poppler's tools.
#pragma once

#include <string>
#include <vector>

#include "support/svgpicture.h"

namespace vernacle::test {

// The strokes of the page of a PDF, by Poppler. The converter counts from the sheet's top left
// corner, though the page's box is rounded to whole points.
SvgPicture ReadPdf(const std::string& path);

// The words on the page of a PDF with the boxes around them, by Poppler.
struct Word {
    std::string text;
    MmPoint topLeft;
    MmPoint bottomRight;
    MmPoint Centre() const;
};
std::vector<Word> ReadPdfWords(const std::string& path);

} // namespace vernacle::test
