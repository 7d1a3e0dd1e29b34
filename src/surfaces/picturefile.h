// The picture files that designs name.
#pragma once

#include <string>

#include <QImage>

namespace vernacle {

// The file of that name, or else one whose name differs only in the case of its letters, folders
// included: designs hold the names of pictures in upper case. The name itself if there is none.
QString ExistingFile(const std::string& name);

// The picture of a file, whatever its name's ending says; a RunTimeError if it does not load.
QImage LoadPicture(const std::string& file);

} // namespace vernacle
