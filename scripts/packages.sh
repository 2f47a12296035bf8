# Which packages each command needs, and how to install them.

RUN_PACKAGES="cmake ninja-build g++ qt6-base-dev qt6-multimedia-dev qt6-wayland fonts-dejavu-core"
DISPLAY_PACKAGES="xvfb xauth openbox x11-utils"
TEST_PACKAGES="$RUN_PACKAGES libgtest-dev libbenchmark-dev clang git"
LINT_PACKAGES="$TEST_PACKAGES clang-format-14 clang-tidy-14"
INSTALL_TEST_PACKAGES="appstream desktop-file-utils"
COVERAGE_PACKAGES="$TEST_PACKAGES gcovr"

# need PACKAGE...: installs missing packages, or lists them and exits.
need() {
  if ! command -v dpkg-query >/dev/null; then
    # Not Debian or Ubuntu: continue only if all commands exist and the project can be configured.
    local tool
    for tool in cmake ninja g++ $(case " $* " in *" xvfb "*) echo xvfb-run openbox xprop ;; *" clang "*) echo clang ;; esac); do
      command -v "$tool" >/dev/null || { echo "Kickwell needs these packages (by their Debian names): $*" >&2; exit 1; }
    done
    cmake --preset release >/dev/null 2>&1 && return
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
    command -v sudo >/dev/null || { echo "Please install these packages:$missing" >&2; exit 1; }
    root=sudo
  fi
  echo "Installing:$missing"
  # shellcheck disable=SC2086
  $root apt-get update -qq && $root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq $missing >/dev/null ||
    { echo "Could not install these packages:$missing" >&2; exit 1; }
}
