#ifndef KIVUXL_OUTPUT_H
#define KIVUXL_OUTPUT_H

// Output files: each unit is written to a temporary file and put in place under its final name
// only when it is complete.

#include <cstdio>
#include <string>

// One output being written.  `name` is the temporary file's name, "-" for standard output.
struct OutputSlot {
  std::string name;
  std::FILE *stream = nullptr;
};

// Asks for a fresh temporary file and opens it exclusively for writing.  Returns 1, or 0 after an
// immediate message.
int MakeTemporaryFile(const char *dir, const char *prefix, std::string *name_out,
                      std::FILE **stream_out);

// Puts a finished temporary file in place.  Returns 1, or 0 after an immediate message.
int CopyTemporaryToFile(const std::string &temporary, const std::string &final_name);

// The name under which a file is put in place: some compilers want its last part in lower case.
std::string OutputFinalName(std::string path);

// Closes a slot's stream.  Returns 1, or 0 after an immediate message that names the final file
// when not everything could be written.  Standard output stays open.
int OutputClose(OutputSlot *slot, const std::string &final_name);

// Empties a slot: closes its stream, whatever became of it, and removes its temporary file.
void OutputDiscard(OutputSlot *slot);

// Flushes standard output.  Returns 1, or 0 when something could not be written, which is said
// once.
int OutputCheckStandard();

// Between the two a file that is written in place counts as a temporary one: a run that ends early
// removes it.  Devices, pipes and links stay.
void OutputBeginsInPlace(const std::string &name);
void OutputEndsInPlace(const std::string &name);

// Removes every temporary file of the run that is still there.
void OutputRemoveTemporaries();

// Makes SIGINT, SIGTERM, SIGHUP and SIGPIPE, as far as the caller has not had them ignored, remove
// the run's temporary files before they end the process.  Ends it with status 1 and a message when
// there is not even the memory to end it otherwise.
void OutputCatchSignals();

void OutputReset();

#endif
