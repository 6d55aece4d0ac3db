# Takes the examples out of a reference and makes each a script case, named by its line. usage:
#   awk -v folder=CASES -f examples.awk REFERENCE
#
# A fence tells what stands in it:
#   zs          a script that a case runs
#   zs fails    one that ends with status 1
#   zs desktop  one that needs real windows
#   text        behind a script: what it prints; where that is about something else, any "ok" may be left out
#   sh          a command line, not run
# Any other fence is an error, so that no example escapes by a slip.

function stop(line, what) {
  print FILENAME ":" line ": " what > "/dev/stderr"
  failed = 1
  exit 1
}
function open() {
  opened = FNR
  fence = substr($0, 4)
  if (fence ~ /^zs( fails| desktop)?$/) {
    example = sprintf("%s/line%03d%s.zs", folder, FNR, fence == "zs desktop" ? ".desktop" : "")
    print "#prints-all" > example
    fails = fence == "zs fails"
    if (fails) print "#status 1" > example
  } else if (fence == "text") {
    if (example == "") stop(FNR, "no script in front of what it prints")
    # What it prints is judged, so a script that claims nothing will do.
    if (!fails) print "#status 0" > example
  } else if (fence != "sh") {
    stop(FNR, "a fence of an unknown kind: " fence)
  }
}
function shut() {
  if (FNR == opened + 1) stop(opened, "an empty fence")
  if (fence == "text") example = ""
  opened = 0
}

/^```/ { if (opened) shut(); else open(); next }
opened && fence ~ /^zs/ { print > example }
opened && fence == "text" { print "#prints " $0 > example }
END { if (opened && !failed) stop(opened, "this fence is left open") }
