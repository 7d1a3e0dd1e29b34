// Where the program's own files stand: beside the program, where its user may write there, else in
// the user's data folder.
#pragma once

#include <string>

namespace vernacle {

struct ProgramFolders {
    std::string program;   // that the program stands in
    std::string userData;  // of this program for this user; made when it is first needed
    std::string documents; // that the user keeps documents in
};

// Those of this machine and user; needs the application object.
ProgramFolders SystemFolders();

// The full path of a file of that name ("LASTSESSION.VRN", "Calibrate.txt"), whether or not it
// exists. The first use of the user's data folder makes it, with a copy of the Calibrate.txt that
// stands beside the program; what is missing there later stays missing.
std::string ProgramFile(const std::string& name);
std::string ProgramFileIn(const ProgramFolders& folders, const std::string& name);

// The path of the plotter file: on a fixed drive where there are drives, else among the documents.
std::string PlotterFileName();
std::string PlotterFileNameIn(const ProgramFolders& folders);

// The path for a name that the design gives: the bare name of a program's file becomes its full
// path, every other name stays as it is.
std::string FileFor(const std::string& name);
std::string FileForIn(const ProgramFolders& folders, const std::string& name);

} // namespace vernacle
