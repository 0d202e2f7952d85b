// Runs a command, without its output, and prints on one line its exit status (above 128 for a
// signal), its processor time in seconds (its own and the system's for it) and its peak memory in
// KiB.  A program of its own because the system counts the memory of the process that a command was
// forked from as the command's: so that must be a small one.
//
//   measured program argument...

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

[[noreturn]] static void RunCommand(char **command) {
  const int nowhere = open("/dev/null", O_RDWR);
  dup2(nowhere, STDIN_FILENO);
  dup2(nowhere, STDOUT_FILENO);
  dup2(nowhere, STDERR_FILENO);
  execvp(command[0], command);
  _exit(127);
}

static double Seconds(const timeval &time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

int main(int argc, char **argv) {
  if (argc < 2) {
    std::fputs("usage: measured program argument...\n", stderr);
    return 2;
  }
  const pid_t child = fork();
  if (child == 0) {
    RunCommand(argv + 1);
  }
  int status = 0;
  rusage usage{};
  if (child < 0 || wait4(child, &status, 0, &usage) != child) {
    std::perror(argv[1]);
    return 1;
  }
  const int code = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
  std::printf("%d %.6f %ld\n", code, Seconds(usage.ru_utime) + Seconds(usage.ru_stime),
              usage.ru_maxrss);
  return 0;
}
