// What a process starts with is what a reset gives back: the first run and each later one begin
// alike.  The values are read before anything has run, when the tests' own variables are made.

#include <array>
#include <cstddef>
#include <ctime>
#include <string>

#include <gtest/gtest.h>

#include "Alloc.h"
#include "Files.h"
#include "Listing.h"
#include "Options.h"
#include "Reset.h"
#include "Scanner.h"
#include "Types.h"

namespace {

struct StartValues {
  std::size_t live_blocks = AllocLiveBlocks();
  std::size_t failures = AllocFailures();
  int verbosity = verbose;
  int interface = interface_type;
  int revision = orvo_revision;
  int main_type = main_filename_type;
  std::array<int, 2> listing_size = {listing_width, listing_length};
  std::array<bool, 17> flags = {
      case_sensitive,
      override_case,
      emit_main,
      no_uil,
      emit_stubs,
      emit_wrappers,
      emit_make,
      emit_ux,
      apex,
      gnat,
      vads,
      adaworld,
      objectada,
      portable,
      ada95,
      forbid_generic_wrapper,
      forbid_generic_widgets,
  };
  int sources = file_number;
  std::time_t date = run_date_time;
  bool keeps_lines = listing_keeps_lines;
  std::size_t literal_size = lit_bufsiz;
  int literal_length = lit_bufptr;
  std::string first_name = AnonymousWidget("XmForm"); // last, as it takes memory
};

const StartValues start;

} // namespace

TEST(Start, ProcessStartsAsAResetLeavesIt) {
  ProgramReset();
  const StartValues reset;
  EXPECT_EQ(start.live_blocks, 0U);
  EXPECT_EQ(start.failures, 0U);
  EXPECT_EQ(start.verbosity, reset.verbosity);
  EXPECT_EQ(start.interface, reset.interface);
  EXPECT_EQ(start.revision, reset.revision);
  EXPECT_EQ(start.main_type, reset.main_type);
  EXPECT_EQ(start.listing_size, reset.listing_size);
  EXPECT_EQ(start.flags, reset.flags);
  EXPECT_EQ(start.sources, reset.sources);
  EXPECT_EQ(start.date, reset.date);
  EXPECT_EQ(start.keeps_lines, reset.keeps_lines);
  EXPECT_EQ(start.literal_size, reset.literal_size);
  EXPECT_EQ(start.literal_length, reset.literal_length);
  EXPECT_EQ(start.first_name, "anon_XmForm_1");
  ProgramReset();
}
