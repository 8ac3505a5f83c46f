# What flows with a real pointer and keyboard have in common; `folder` is where they leave a picture of a failure.
for tool in xdotool import convert; do
  command -v $tool >/dev/null || { echo "SKIPPED: $tool is missing (xdotool, imagemagick)" >&2; exit 77; }
done

windows_path() { printf 'Z:%s' "${1//\//\\}"; }
fail() {
  printf 'FAILED: %s\n' "$*" >&2
  import -window root "$folder/failed.png" || true
  [ ! -f "${log:-}" ] || tail -n 20 "$log" >&2
  exit 1
}
# eventually WHAT COMMAND...: the command succeeds within ten seconds, or `tries` tenths of a second.
eventually() {
  local what=$1 i
  shift
  for ((i = 0; i < ${tries:-100}; ++i)); do
    ! "$@" || { printf 'ok: %s\n' "$what"; return 0; }
    sleep 0.1
  done
  fail "$what"
}
pixel() { import -window root -depth 8 -crop "1x1+$1+$2" +repage txt:- | sed -n 's/.*\(#[0-9A-F]\{6\}\).*/\1/p'; }
pixel_is() { [ "$(pixel "$1" "$2")" = "$3" ]; }
move() { xdotool mousemove "$1" "$2" sleep 0.1; }
click() { move "$1" "$2"; xdotool click "${3:-1}" sleep 0.1; }
