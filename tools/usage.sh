# Sourced by every command before it does anything: asked for --help, it prints the comment that the command
# opens with, and ends.
# shellcheck shell=bash

if [[ ${1:-} == --help ]]; then
  sed -n '2,${/^#/!q; /^# shellcheck/d; s/^# \{0,1\}//p}' "$0"
  exit
fi
