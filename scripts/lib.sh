# shellcheck shell=bash disable=SC2034
# What the scripts share: one line a step, and the packages that a step needs.  Sourced, not run;
# leaves the shell in the project's top directory, under `set -euo pipefail`.

set -euo pipefail
cd "$(dirname -- "${BASH_SOURCE[0]}")/.."

jobs=$(nproc)
# Everything that the steps print goes here, a file for each step.
logs=$PWD/build/log

# Prints a line about what is being done.
Say() { printf '==> %s\n' "$*"; }

# Ends the script with a message.
Fail() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  exit 1
}

# OnlyHelp text word...: for scripts whose only option is --help.
OnlyHelp() {
  local text=$1
  shift
  case "$#:${1-}" in
    0:*) ;;
    1:--help | 1:-h)
      printf '%s\n' "$text"
      exit 0
      ;;
    *)
      printf '%s\n' "$text" >&2
      exit 2
      ;;
  esac
}

# TryStep log-name text command...: says the text, runs the command with its output in a log, and
# says how long it took; when the command fails prints the log's end and returns 1.
TryStep() {
  local log=$logs/$1.log text=$2 start=$SECONDS
  shift 2
  mkdir -p "$logs"
  printf '==> %s ... ' "$text"
  if "$@" >"$log" 2>&1 </dev/null; then
    printf 'done (%d s)\n' $((SECONDS - start))
  else
    printf 'FAILED (%d s); all output: %s\n' $((SECONDS - start)) "${log#"$PWD/"}"
    tail -n 200 "$log"
    return 1
  fi
}

# TryStep, and the end of the script when that fails.
Step() { TryStep "$@" || Fail "failed: ${*:3}"; }

# MakeLocales directory: compiles the locales under which the tests run into a directory of its own;
# the system's stay as they are.
MakeLocales() {
  local name
  mkdir -p "$1"
  for name in C de_DE tr_TR ja_JP; do
    if [ ! -d "$1/$name.UTF-8" ]; then
      localedef --no-archive -i "$name" -f UTF-8 "$1/$name.UTF-8" || return
    fi
  done
}

# Runs a command as root.
AsRoot() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  else
    sudo "$@"
  fi
}

AptInstall() {
  AsRoot apt-get -o Acquire::Retries=3 update &&
    AsRoot env DEBIAN_FRONTEND=noninteractive \
      apt-get -o Acquire::Retries=3 -o DPkg::Lock::Timeout=300 install -y --no-install-recommends "$@"
}

# NeedPackages package...: installs those that are missing; calls no package tool but dpkg-query
# when none is.
NeedPackages() {
  local package missing=()
  if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    Say "no Debian system: taking these packages' contents as installed: $*"
    return
  fi
  for package in "$@"; do
    if [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
      missing+=("$package")
    fi
  done
  if [ ${#missing[@]} -eq 0 ]; then
    return
  fi
  if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
    Fail "not root, and there is no sudo; have root run: apt-get install ${missing[*]}"
  fi
  if [ "$(id -u)" -ne 0 ]; then
    sudo -v # asks for the password here, not in a step whose output goes to a log
  fi
  Step packages "installing ${missing[*]}" AptInstall "${missing[@]}"
}
