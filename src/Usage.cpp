// See Usage.h.  The text also lists options that have no effect in this program, and describes some
// that the translator has grown out of: it is known to users as it stands.

#include "Usage.h"

#include <cstdio>

#include "Error.h"

static constexpr char kUsage[] = R"usage(Usage:
kivuxl
  [-ada] [-orvo | -orvo3 | -orvo4] [-stars] [-c] [-cs | -ci] [-ada83 | -ada95]
  [-apex | -gnat | -vads | -adaworld | -objectada | -portable]
  [-o file] [-I path] [-dir dir] [-tmp tmp]
  [-v file] [-width n] [-length n] [-version] [-verbose] [-w]
  [-stub] [-wrap] [-make] [-ux] [-spec sfx] [-body sfx]
  [-widgets [suffix]] [-sfx [suffix]] [-cbs [suffix]] [-inst [suffix]]
  [-main [name]] [-cfg file] [-nouil] [-help] [-wmd fn]
  [-shell shell_name shell_class child_name] filename

Code generation options:
  -ada      : Write the output in Ada using the ORVO Interface (default).
  -orvo     : Same as the -ada option.
  -orvo3    : Write the output for the ORVO version 3 bindings (default).
  -orvo4    : Write the output for the ORVO version 4 bindings.
  -cs | -ci : Override the 'names =' declaration in the UIL module,
              forcing names in the UIL to be case-sensitive (-cs)
              or case-insensitive (-ci).
  -stub     : Generate stubs for callback procedures.
  -wrap     : Generate wrappers for callbacks with client data.
  -spec sfx : Use the suffix sfx for package spec files.
  -body sfx : Use the suffix sfx for package body files.
  -widgets [suffix]
            : Generate a record for each top-level widget in the module;
              also generate code to fill in the record with widgets as
              they are created, and a create function returning a record
              of this type for each top-level widget.
              The default suffix is `widgets', so if `-widgets` is given
              without a suffix argument, the record type will be
              <top-level-widget-name>_widgets.
  -sfx [suffix]
            : Override the default name of the UIL package.
              The default name is <module-name>_uil.
              Giving -sfx with no argument will change the UIL
              package name to <module-name>.
              Giving -sfx <argument> will change the UIL
              package name to <module-name>_<argument>.
  -cbs [suffix]
            : Override the default name of the callback stub package.
              The default name is <module-name>_callbacks.
              Giving -cbs with no argument will change the callback stub
              package name to <module-name>.
              Giving -cbs <argument> will change the callback stub
              package name to <module-name>_<argument>.
  -inst [suffix]
            : Override the default name of the UIL instantiation package.
              The default name is <module-name>.
              Giving -inst with no argument will not change the name.
              Giving -inst <argument> will change the UIL instantiation
              package name to <module-name>_<argument>.
  -main [name]
            : Generate a main program skeleton.
              `-main' generates a main program with the default filename
              and the same suffix of the package body.
              `-main .ext' generates a main program with the default
              filename and the given suffix.
              `-main filename' generates a main program with the given
              filename and the same suffix of the package body.
              `-main filename.ext' generates a main program in the
              file filename.ext
  -ng [callbacks|widgets]
            : Do not use Ada generics for callback procedure (callbacks),
              for the UIL package (widgets), or for both (no argument).  -nouil    : No UIL file specified; generate main program only.
  -shell shell_name shell_class child_name
            : Used together with the `-nouil' switch.  Can be used
              repeatedly.  The three arguments are used to generate
              the main program.

File and directory options:
  -cfg file : Read options from a configuration file.
  -o file   : Write the output to the file.
  -I path   : Add path to list of directories for includes
  -dir dir  : Write files to the directory dir.
  -tmp dir  : Write temporary files to the directory dir.

Informational options:
  -w        : Suppress all messages from the compiler.
  -v file   : Produce a source listing in file.
  -width n  : Source listing width is n columns.
  -length n : Source listing length is n lines per page.
  -version  : Display UIL Translator version number.
  -verbose  : Display translator messages.
  -help     : Display this list.

Compiler options:
  Specify just one of the following options:
  -apex     : Generate files compatible with Apex.
  -gnat     : Generate files compatible with GNAT (implies Ada 95).
  -vads     : Generate files compatible with VADS.
  -adaworld : Generate files compatible with AdaWorld.
  -objectada: Generate files compatible with ObjectAda (implies Ada 95).
  -portable : Generate portable Ada files (this is the default).

  These options may be specified with any of the compiler options:
  -ada95    : Generate Ada95 files (Ada83 is the default).
  -ada83    : Generate Ada83 files (this is the default).

Reserved options:
  These options are reserved for future use.
  If specified, they will be ignored:
  -stars    : Write the output in Ada using the STARS Interface.
  -c        : Write the output in C.
  -ux       : Use UIM/X Ux convenience functions.
  -make     : Generate a makefile.
  -wmd file : Specifies a binary widget meta language description file
              to be used in place of the default WML description.
)usage";

void Help() {
  std::fflush(stdout);
  std::fputs(kUsage, stderr);
  Shutdown(0);
}
