# A virtual display. Source packages.sh first.

# on_display COMMAND...: runs COMMAND on its own display with a window manager, and returns its exit status.
on_display() {
  # shellcheck disable=SC2086
  need $DISPLAY_PACKAGES
  xvfb-run -a -s "-screen 0 1280x900x24" bash -c '
    openbox >/dev/null 2>&1 & manager=$!
    for i in $(seq 50); do  # Wait until the window manager is ready.
      xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "window id" && break
      sleep 0.1
    done
    "$@"; status=$?
    kill $manager
    exit $status' on_display "$@"
}
