#ifndef KIVUXL_RESET_H
#define KIVUXL_RESET_H

// Puts the whole program back to its start, the model's memory included, so that one process can
// run many translations.
void ProgramReset();

#endif
