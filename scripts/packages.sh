# Sourced by the project's commands: what each needs of the machine, and how it gets there.

RUN_PACKAGES="cmake ninja-build g++ qt6-base-dev qt6-wayland fonts-dejavu-core"
DISPLAY_PACKAGES="xvfb xauth openbox x11-utils"
TEST_PACKAGES="$RUN_PACKAGES libgtest-dev libbenchmark-dev clang git"
LINT_PACKAGES="$TEST_PACKAGES clang-format-14 clang-tidy-14"

# need PACKAGE...: installs what is missing, or names it and stops.
need() {
  if ! command -v dpkg-query >/dev/null; then
    # Not a Debian or Ubuntu: a machine that can configure the project has what it needs.
    command -v cmake >/dev/null && cmake --preset release >/dev/null 2>&1 && return
    echo "Kickwell needs these packages (by their Debian names): $*" >&2
    exit 1
  fi
  local package missing=""
  for package in "$@"; do
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing="$missing $package"
  done
  [ -n "$missing" ] || return 0
  local root=""
  if [ "$(id -u)" != 0 ]; then
    command -v sudo >/dev/null || { echo "Please install:$missing" >&2; exit 1; }
    root=sudo
  fi
  echo "Installing:$missing"
  # shellcheck disable=SC2086
  $root apt-get update -qq && $root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq $missing >/dev/null ||
    { echo "These packages could not be installed:$missing" >&2; exit 1; }
}
