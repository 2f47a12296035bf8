# A virtual display. Source packages.sh first.

# on_display COMMAND...: runs COMMAND on its own display with a window manager, and returns its exit status.
on_display() {
  # shellcheck disable=SC2086
  need $DISPLAY_PACKAGES
  xvfb-run -a -s "-screen 0 1280x900x24" bash -c '
    openbox >/dev/null 2>&1 & manager=$!
    for i in $(seq 100); do  # Wait until the window manager is ready. On a busy machine it may start before the display.
      xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q "window id" && break
      kill -0 $manager 2>/dev/null || { openbox >/dev/null 2>&1 & manager=$!; }
      sleep 0.1
    done
    "$@"; status=$?
    kill $manager
    exit $status' on_display "$@"
}
