// The design file (.VRN): a text of lines known by their places, written and read by one table.
#pragma once

#include <string>
#include <vector>

#include "engine/base/readreports.h"
#include "engine/core/design.h"

namespace vernacle {

// Writes the design to DesignFileName, replacing the file; false if that failed. A failure is
// reported; the file stays as far as it got, and that of the printer's calibration is not touched.
// Careful files are written whole or stay, and leave the design alone.
// Writing changes the design a little: empty labels of special tics become "/", a graphic that is
// not drawn loses its file name, the highlights and deletions are counted anew.
bool WriteDesign(DesignRecord& design);

// The text of a careful file: the lines by their places, then what they cannot hold. A run-time
// error for a design whose tables a file has no lines for.
std::string DesignText(const DesignRecord& design);

// The design that such a text holds; a run-time error leaves the one that was there.
void ReadDesignText(DesignRecord& design, const std::string& text);

// What the design in a file's bytes has in use that an everyday plate leaves out, in words; nothing
// where they cannot be read.
std::vector<std::string> LeftOutOf(const std::string& bytes);

// WriteDesign, unless the name is empty.
void SaveDesign(DesignRecord& design, const std::string& name);

// Writes the design to "Backup.DAT" and leaves it without a name.
void BackupDesign(DesignRecord& design);

// Reads it back, with what the reader forces on every design.
void RestoreBackup(DesignRecord& design);

// Writes the design to "LASTSESSION.VRN" beside the program and leaves that name; false if that
// failed, which is reported. Where files are careful, the session is a file of another name, and
// the design keeps its own.
bool SaveLastSession(DesignRecord& design);

// The same without a word, and with the design left as it is.
bool KeepLastSession(const DesignRecord& design);

// The name of the design that a file's bytes tell of; empty where they tell of none.
std::string DesignNameIn(const std::string& bytes);

// The name of the file of the last session that was kept, wherever that was.
std::string LastSessionName();

// Those of all the sessions that are kept, the newest first.
std::vector<std::string> KeptSessionNames();

// Reads a design file over the defaults; an empty name does nothing at all. A file that ends early
// is no failure. A failure is reported with its stage and leaves the defaults, or the design that
// was there where files are careful. Gives whether it was read.
bool ReadDesign(DesignRecord& design, const std::string& name, const ReadReports& reports = {});

} // namespace vernacle
