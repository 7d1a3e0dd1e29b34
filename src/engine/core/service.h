// What a program has in service. The everyday program keeps much of the house behind this stored
// state; the workshop opens it. A program stores one of the two rows before its first page, and
// nothing changes it afterwards. Who needs one thing asks for that thing by its name.
#pragma once

namespace vernacle {

struct ServiceState {
    bool severalScales = false; // up to six, their switches of tics and arcs; else one
    bool specialScales = false; // the laws of the setups, and the colours of scales
    bool exponent = false;      // of a standard scale's law
    bool styles = false;        // quadrant plates, round ones, fonts, backgrounds
    bool reserveStages = false; // highlights, free texts, a graphic, overlays
    bool truePlate = false;     // the one drawing for screen, paper, files and plotter
    bool curveInFile = false;   // the movement's curve outlives the session
    bool carefulFiles = false;  // files that lose nothing
    bool wizard = false;
    bool illustratedHelp = false;
};

// The one of this process: everyday unless a program stores another.
extern ServiceState Service;

enum class Program { Everyday, Workshop };

const ServiceState& ServiceOf(Program program);
void StoreService(Program program);

// As the user of the stored program knows it.
const char* ServiceName();

// A member that lifts what the everyday program forces or leaves out; none where nothing does.
using LiftedBy = bool ServiceState::*;

bool IsLifted(LiftedBy member);

} // namespace vernacle
