// See Reset.h.  The memory of the model goes last: the tables and lists that point into it have
// been forgotten by then.

#include "Reset.h"

#include "AdaMain.h"
#include "AdaWidgetProcs.h"
#include "Alloc.h"
#include "Convert.h"
#include "Error.h"
#include "Filename.h"
#include "Files.h"
#include "Initialize.h"
#include "Listing.h"
#include "Model.h"
#include "Options.h"
#include "Output.h"
#include "Parser.h"
#include "Scanner.h"
#include "Types.h"
#include "WidgetUtils.h"

void ProgramReset() {
  ErrorReset();
  ListingReset();
  FilesReset();
  ScannerReset();
  ParserReset();
  InitializeReset();
  ModelReset();
  TypesReset();
  OptionsReset();
  FilenameReset();
  ConvertReset();
  OutputReset();
  WidgetUtilsReset();
  AdaWidgetProcsReset();
  AdaMainReset();
  AllocReset();
}
