// The files of which the help book is made. Where the illustrated help is in service topics of its
// own stand before the everyday ones of the same names.
#pragma once

#include <QString>

namespace vernacle {

// Where a topic or a picture of that name is read ("vplate.htm"), whether or not it is there.
QString HelpFile(const QString& name);

// The text of a topic with what it takes over from everyday topics: in place of a line
// "<!--vplate.htm: Measuring a real meter-->" stands that section of that topic.
QString WithSections(const QString& topic);

} // namespace vernacle
