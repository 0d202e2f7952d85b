#ifndef KIVUXL_ADAWIDGETPROCS_H
#define KIVUXL_ADAWIDGETPROCS_H

// The Ada of one widget: its creation function, its post procedure, their declarations, the client
// data of its callbacks, and the record of what has been written already.

#include <cstdio>

#include "uiltoada.h"

extern HashTable widget_table;             // WidgetEmit by widget name; made by Convert
extern const char *child_self_or_parent;   // the Ada expression that conversions run against
extern const WidgetDef *current_top_level; // the tree being written, or null

// Create `widget_table`; false when it could not be made.
bool WidgetTableInit();

// Each of these walks the tree below the widget and writes its part for every widget in it once,
// however many parents share it.  `counter` counts the invocations of procedures met so far, which
// are the client data; the caller starts it at 0 and hands it from tree to tree.
void WidgetWriteCreateProc(const WidgetDef *widget, std::FILE *file, unsigned *counter);
void WidgetWritePostProc(const WidgetDef *widget, std::FILE *file, unsigned *counter);
void WidgetDeclareCreateProc(const WidgetDef *widget, std::FILE *file);
void WidgetDeclarePostProc(const WidgetDef *widget, std::FILE *file);
void WidgetDeclareClientData(const WidgetDef *widget, std::FILE *file, unsigned *counter);
void WidgetWriteCallbackCases(const WidgetDef *widget, std::FILE *file, unsigned *counter);

// True when no widget is under two top-level widgets; otherwise false after a message.
bool WidgetCheckDuplicates();

// Makes sure every widget of the tree has a record and clears where it was last recorded.
void WidgetClearEmitRecord(const WidgetDef *widget);
// Records the tree under `current_top_level`; false on the first widget recorded elsewhere.
bool WidgetCheckEmitRecord(const WidgetDef *widget);
// The widget's record, made when there is none.
WidgetEmit *WidgetEmitRecord(const WidgetDef *widget);

void AdaWidgetProcsReset();

#endif
