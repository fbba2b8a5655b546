# Sourced by ./dev: runs programs for Windows, by Wine, in a Windows of their own that is made for
# the run and on a display that nobody sees.
# shellcheck shell=bash

# wine_tool NAME: where Wine's program NAME is. Debian keeps them apart from its wrapper scripts.
wine_tool() { command -v "$1" || command -v "/usr/lib/wine/$1"; }

start_display() {
  # The display's number is one that is free; it is told as soon as programs can connect.
  exec {display_number}< <(exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp 2>build-windows/display.log)
  display_process=$!
  read -r DISPLAY <&"$display_number" || {
    echo "dev: there is no display; see build-windows/display.log" >&2
    return 1
  }
  export DISPLAY=:$DISPLAY
}

# A window manager, which is not there, is not waited for: each window would take two seconds. Names
# that begin with a dot are not hidden, as they are not on Windows: the dialog for folders does not
# take a hidden one. The disk that holds our files has no label: where it could not be read, programs
# would be told so. Debian's Wine does not find its own fonts; without them dialogs have other sizes
# than on Windows. A program that crashes ends: the debugger would wait for somebody.
make_wine_prefix() {
  local wine fonts=$WINEPREFIX/drive_c/windows/Fonts
  wine=$(wine_tool wine64)
  rm -rf "$WINEPREFIX"
  mkdir -p "$fonts"
  cp /usr/share/wine/fonts/*.ttf "$fonts"
  { "$wine" wineboot --init && ln -s /dev/null "$WINEPREFIX/dosdevices/z::" &&
    "$wine" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f &&
    "$wine" reg add 'HKCU\Software\Wine' /v ShowDotFiles /d Y /f &&
    "$wine" reg add 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\AeDebug' \
      /v Debugger /d 'cmd /c exit' /f; } >build-windows/wine.log 2>&1 || {
    echo "dev: Wine does not start; see build-windows/wine.log" >&2
    return 1
  }
}

# A process that waits for us to end. Without any of ours Wine ends its own too, and the next test has
# to wait for them.
keep_wine_awake() {
  # shellcheck disable=SC2034  # it is enough that it is open
  exec {awake}> >(exec "$(wine_tool wine64)" cmd >/dev/null 2>&1)
}

stop_wine() {
  "$(wine_tool wineserver)" -k || true
  kill "$display_process" || true
}

# with_wine COMMAND...: runs the command; programs that it runs with Wine find everything there.
with_wine() (
  mkdir -p build-windows
  export WINEPREFIX=$PWD/build-windows/wine WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml='
  export LC_ALL=C.UTF-8    # file names are UTF-8
  export ORVANE_VISIBLE=1  # nobody looks; and each desktop takes Wine a process that lives on
  trap stop_wine EXIT
  start_display
  make_wine_prefix
  keep_wine_awake
  "$@"
)
