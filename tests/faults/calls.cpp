// A library to be preloaded into the program under test, in which chosen system calls fail.
//
// A filter in the kernel turns the system calls of the table below into the signal SIGSYS, whoever
// makes them: also the writing that the C library does by itself.  The handler counts the calls by
// family and carries them out, fails them, cuts them short, or raises a signal behind them.  The
// calls that the handler makes come from one known instruction, which the filter lets pass.
//
// KIVUXL_FAULTS holds rules, each ended by ";":
//     <family>,<first>,<last>,<action>
// Calls number <first> to <last> of the family, counted from 1, meet the action: an error number,
// 0 for writing or reading half of what was asked, or a signal's number with "-" in front.  A file
// that cannot be closed loses its last byte.  The family "any" is every call of the table.
// KIVUXL_FAULTS_REPORT names a file into which an "F" is written whenever the last rule is applied,
// which comes before the others.
//
// Writing to standard error belongs to no family, or the message that must come could not.

#include <fcntl.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <signal.h>
#include <stdlib.h>
#include <string.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <ucontext.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>

// -- The machine -------------------------------------------------------------------------------

// RawCall(number, six arguments) is a system call; RawCallEnd is the address behind it.
extern "C" {
long RawCall(long number, ...);
extern const char RawCallEnd[];
}

#if defined(__x86_64__)
constexpr std::uint32_t kMachine = AUDIT_ARCH_X86_64;
__asm__(".text\n"
        ".hidden RawCall, RawCallEnd\n"
        ".globl RawCall, RawCallEnd\n"
        ".type RawCall, @function\n"
        "RawCall:\n"
        "  mov %rdi, %rax\n"
        "  mov %rsi, %rdi\n"
        "  mov %rdx, %rsi\n"
        "  mov %rcx, %rdx\n"
        "  mov %r8, %r10\n"
        "  mov %r9, %r8\n"
        "  mov 8(%rsp), %r9\n"
        "  syscall\n"
        "RawCallEnd:\n"
        "  ret\n");

static long Argument(const ucontext_t *context, int index) {
  static constexpr int kRegisters[] = {REG_RDI, REG_RSI, REG_RDX, REG_R10, REG_R8, REG_R9};
  return context->uc_mcontext.gregs[kRegisters[index]];
}

static void SetResult(ucontext_t *context, long result) {
  context->uc_mcontext.gregs[REG_RAX] = result;
}
#elif defined(__aarch64__)
constexpr std::uint32_t kMachine = AUDIT_ARCH_AARCH64;
__asm__(".text\n"
        ".hidden RawCall, RawCallEnd\n"
        ".globl RawCall, RawCallEnd\n"
        ".type RawCall, @function\n"
        "RawCall:\n"
        "  mov x8, x0\n"
        "  mov x0, x1\n"
        "  mov x1, x2\n"
        "  mov x2, x3\n"
        "  mov x3, x4\n"
        "  mov x4, x5\n"
        "  mov x5, x6\n"
        "  svc #0\n"
        "RawCallEnd:\n"
        "  ret\n");

static long Argument(const ucontext_t *context, int index) {
  return static_cast<long>(context->uc_mcontext.regs[index]);
}

static void SetResult(ucontext_t *context, long result) {
  context->uc_mcontext.regs[0] = static_cast<unsigned long long>(result);
}
#else
#error "write RawCall, Argument and SetResult for this machine"
#endif

// -- Families ----------------------------------------------------------------------------------

struct CallRow {
  const char *family;
  long number;
};

static constexpr CallRow kCalls[] = {
    {"write", SYS_write},       {"write", SYS_writev},     {"write", SYS_pwrite64},
    {"read", SYS_read},         {"read", SYS_readv},       {"read", SYS_pread64},
    {"open", SYS_openat},       {"close", SYS_close},      {"link", SYS_linkat},
    {"rename", SYS_renameat},   {"rename", SYS_renameat2}, {"unlink", SYS_unlinkat},
    {"size", SYS_ftruncate},    {"size", SYS_fsync},       {"size", SYS_fallocate},
    {"mode", SYS_fchmod},       {"mode", SYS_fchmodat},    {"status", SYS_fstat},
    {"random", SYS_getrandom},  {"seek", SYS_lseek},       {"control", SYS_fcntl},
    {"status", SYS_newfstatat},
#if defined(SYS_open) // the older calls that newer machines do without
    {"open", SYS_open},         {"link", SYS_link},        {"rename", SYS_rename},
    {"unlink", SYS_unlink},     {"mode", SYS_chmod},       {"status", SYS_stat},
#endif
};
constexpr std::size_t kCallCount = sizeof kCalls / sizeof kCalls[0];

static const char *FamilyOf(long number) {
  for (const CallRow &row : kCalls) {
    if (row.number == number) {
      return row.family;
    }
  }
  return "";
}

// -- Rules -------------------------------------------------------------------------------------

struct Rule {
  char family[16];
  long first;
  long last;
  long action;
  long calls; // so far
};

constexpr std::size_t kMaxRules = 4;
static Rule rules[kMaxRules];
static std::size_t rule_count = 0;
static int report = -1;

[[noreturn]] static void BadRule() {
  static constexpr char kMessage[] = "KIVUXL_FAULTS: not a rule\n";
  static_cast<void>(!write(STDERR_FILENO, kMessage, sizeof kMessage - 1));
  _exit(125);
}

// Reads a number and the character behind it.
static long ReadNumber(const char **text, char end) {
  char *behind = nullptr;
  const long number = strtol(*text, &behind, 10);
  if (behind == *text || *behind != end) {
    BadRule();
  }
  *text = behind + 1;
  return number;
}

static void ReadRules(const char *text) {
  while (*text != '\0') {
    const char *comma = strchr(text, ',');
    if (rule_count == kMaxRules || comma == nullptr ||
        comma - text >= static_cast<std::ptrdiff_t>(sizeof rules[0].family)) {
      BadRule();
    }
    Rule *rule = &rules[rule_count++];
    memcpy(rule->family, text, static_cast<std::size_t>(comma - text));
    text = comma + 1;
    rule->first = ReadNumber(&text, ',');
    rule->last = ReadNumber(&text, ',');
    rule->action = ReadNumber(&text, ';');
  }
}

// Counts the call; returns the rule that it meets, or null.
static const Rule *RuleOf(long number, const ucontext_t *context) {
  const char *family = FamilyOf(number);
  if (strcmp(family, "write") == 0 && Argument(context, 0) == STDERR_FILENO) {
    return nullptr;
  }
  const Rule *met = nullptr;
  for (std::size_t i = 0; i < rule_count; ++i) {
    Rule *rule = &rules[i];
    if (strcmp(rule->family, family) == 0 || strcmp(rule->family, "any") == 0) {
      ++rule->calls;
      if (rule->calls >= rule->first && rule->calls <= rule->last) {
        met = rule;
      }
    }
  }
  return met;
}

// -- The handler -------------------------------------------------------------------------------

static long CarryOut(long number, const ucontext_t *context, long third) {
  return RawCall(number, Argument(context, 0), Argument(context, 1), third, Argument(context, 3),
                 Argument(context, 4), Argument(context, 5));
}

// A file that cannot be closed after writing has not kept what was written last.
static void LoseEnd(long descriptor) {
  const long size = RawCall(SYS_lseek, descriptor, 0L, long{SEEK_END}, 0L, 0L, 0L);
  if (size > 0) {
    RawCall(SYS_ftruncate, descriptor, size - 1, 0L, 0L, 0L, 0L);
  }
}

static long Apply(const Rule &rule, long number, const ucontext_t *context) {
  const long third = Argument(context, 2);
  if (report >= 0 && &rule == &rules[rule_count - 1]) {
    RawCall(SYS_write, report, "F", 1L, 0L, 0L, 0L);
  }
  if (rule.action < 0) {
    const long result = CarryOut(number, context, third);
    kill(getpid(), static_cast<int>(-rule.action)); // comes when this handler returns
    return result;
  }
  if (rule.action == 0) {
    return CarryOut(number, context, third > 1 ? third / 2 : third);
  }
  if (number == SYS_close) {
    LoseEnd(Argument(context, 0));
    CarryOut(number, context, third); // the descriptor is lost all the same
  }
  return -rule.action;
}

static void OnCall(int /*signal*/, siginfo_t *info, void *data) {
  auto *context = static_cast<ucontext_t *>(data);
  const long number = info->si_syscall;
  const Rule *rule = RuleOf(number, context);
  SetResult(context, rule == nullptr ? CarryOut(number, context, Argument(context, 2))
                                     : Apply(*rule, number, context));
}

// -- The filter --------------------------------------------------------------------------------

static void CatchCalls() {
  struct sigaction action {};
  action.sa_sigaction = OnCall;
  action.sa_flags = SA_SIGINFO | SA_NODEFER;
  sigfillset(&action.sa_mask);
  sigdelset(&action.sa_mask, SIGSYS);
  sigaction(SIGSYS, &action, nullptr);
}

static sock_filter Load(std::size_t offset) {
  return BPF_STMT(BPF_LD | BPF_W | BPF_ABS, static_cast<std::uint32_t>(offset));
}

static sock_filter Return(std::uint32_t action) { return BPF_STMT(BPF_RET | BPF_K, action); }

// Skips `otherwise` instructions when the value is another one.
static sock_filter IfEqual(std::uint64_t value, std::size_t then, std::size_t otherwise) {
  return BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<std::uint32_t>(value),
                  static_cast<std::uint8_t>(then), static_cast<std::uint8_t>(otherwise));
}

static bool InstallFilter() {
  const auto end = reinterpret_cast<std::uintptr_t>(&RawCallEnd);
  constexpr std::size_t kAddress = offsetof(seccomp_data, instruction_pointer); // low half first
  sock_filter program[kCallCount + 10];
  std::size_t count = 0;
  program[count++] = Load(offsetof(seccomp_data, arch));
  program[count++] = IfEqual(kMachine, 1, 0);
  program[count++] = Return(SECCOMP_RET_ALLOW);
  program[count++] = Load(offsetof(seccomp_data, nr));
  for (std::size_t i = 0; i < kCallCount; ++i) {
    program[count++] = IfEqual(static_cast<std::uint64_t>(kCalls[i].number), kCallCount - i, 0);
  }
  program[count++] = Return(SECCOMP_RET_ALLOW);
  program[count++] = Load(kAddress);
  program[count++] = IfEqual(end & 0xffffffffU, 0, 3);
  program[count++] = Load(kAddress + sizeof(std::uint32_t));
  program[count++] = IfEqual(std::uint64_t{end} >> 32, 0, 1);
  program[count++] = Return(SECCOMP_RET_ALLOW);
  program[count] = Return(SECCOMP_RET_TRAP);
  sock_fprog filter = {static_cast<unsigned short>(count + 1), program};
  return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
         prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

__attribute__((constructor)) static void Start() {
  const char *text = getenv("KIVUXL_FAULTS");
  if (text == nullptr) {
    return;
  }
  ReadRules(text);
  const char *name = getenv("KIVUXL_FAULTS_REPORT");
  if (name != nullptr) {
    constexpr int kOutOfTheWay = 100; // the program's own descriptors stay what they are
    const int descriptor = open(name, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    report = fcntl(descriptor, F_DUPFD_CLOEXEC, kOutOfTheWay);
    close(descriptor);
  }
  CatchCalls();
  if (!InstallFilter()) {
    static constexpr char kMessage[] = "the kernel refuses the filter\n";
    static_cast<void>(!write(STDERR_FILENO, kMessage, sizeof kMessage - 1));
    _exit(125);
  }
}
