// Where the program's own files stand: beside the program, where its user may write there, else in
// the user's data folder. What came with the program is read from its share.
#pragma once

#include <string>
#include <vector>

namespace vernacle {

struct ProgramFolders {
    std::string program;   // that the program stands in
    std::string userData;  // of this program for this user; made when it is first needed
    std::string documents; // that the user keeps documents in
    std::string share;     // of what came with the program
};

// Those of this machine and user; needs the application object.
ProgramFolders SystemFolders();

// The files of one run: the first use decides where they stand, and so it stays. A folder that
// cannot be written for a moment would else send a session where the next start does not look.
class ProgramFiles {
public:
    explicit ProgramFiles(ProgramFolders folders) : folders_(std::move(folders)) {}

    // The full path of a file of that name ("LASTSESSION.VRN"), whether or not it exists. The
    // user's data folder is made where files stand there.
    std::string PathOf(const std::string& name);

    // The path of the newest file of that name that this user owns, beside the program or in the
    // data folder; that of PathOf where there is none.
    std::string NewestOf(const std::string& name);

    // Where the printer's calibration is written.
    std::string Calibration();

    // What it may be read from, in this order: the user's own, the newest first, then one that
    // another user left, at last the one that came with the program.
    std::vector<std::string> Calibrations();

private:
    std::vector<std::string> Places(const std::string& name);
    std::vector<std::string> OwnNewestFirst(const std::string& name);

    ProgramFolders folders_;
    std::string chosen_; // of the first two folders; empty before the first use
};

// The folder of the designs to start from; empty where none came with the program.
std::string ExamplesFolder();
std::string ExamplesFolderIn(const ProgramFolders& folders);

// The path of a file of that name that the program proposes: among the user's documents.
std::string ProposedFile(const std::string& name);

// The path of the plotter file: on a fixed drive where there are drives, else as a proposed one.
std::string PlotterFileName();
std::string PlotterFileNameIn(const ProgramFolders& folders);

} // namespace vernacle
