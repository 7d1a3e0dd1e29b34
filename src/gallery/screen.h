// A screen of any size without a display, and the look of the desktop on it.
#pragma once

namespace vernacle::gallery {

struct Arguments;

// Chooses, before the application object is made, a platform without windows whose one screen has
// the size and the device ratio that were asked for; any other that the environment names stays.
// Throws if the screen cannot be described to it.
void UseScreenOf(const Arguments& arguments);

// Sets, once there is an application object, the colours and the font that were asked for.
void UseLookOf(const Arguments& arguments);

} // namespace vernacle::gallery
