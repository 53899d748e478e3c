# Sourced by the commands at the top: runs their stages, each in a process group of its own that is ended
# with the command, and says which one failed.
# shellcheck shell=bash

child=
private=
clean_up() {
  trap '' INT TERM HUP
  if [[ $child ]]; then kill -- "-$child" 2>/dev/null || true; fi
  wait
  if [[ $private ]]; then rm -rf "$private"; fi
}
trap clean_up EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

# stage NAME COMMAND...
stage() {
  echo "== $1"
  setsid "${@:2}" <&0 &
  child=$!
  wait "$child" || {
    code=$?
    echo "$0: failed at: $1" >&2
    exit "$code"
  }
  child=
}

# A home of its own, so that nothing touches a person's settings; but the cache stays where it is.
use_private_home() {
  export PELLUCOR_CACHE=${PELLUCOR_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/pellucor}
  private=$(mktemp -d)
  mkdir -m 700 "$private"/{home,config,runtime}
  export HOME=$private/home XDG_CONFIG_HOME=$private/config XDG_RUNTIME_DIR=$private/runtime
  unset XDG_CACHE_HOME XDG_DATA_HOME XDG_STATE_HOME
}
