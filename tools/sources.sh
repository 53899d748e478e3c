# Sourced in the top folder by the scripts that make packages: what the sources are and how old, in a checkout
# and where they were unpacked from an archive.
# shellcheck shell=bash

is_checkout() { [[ $(git rev-parse --show-toplevel 2>/dev/null) == "$PWD" ]]; }

# Committed or not, but nothing that a build leaves behind.
source_files() {
  if is_checkout; then
    git ls-files -co --exclude-standard
  else
    find . -path ./build -prune -o ! -type d -printf '%P\n'
  fi | LC_ALL=C sort
}

# In seconds since 1970: of the commit; unpacked files have its date, too.
source_date() {
  if is_checkout; then
    git log -1 --format=%ct
  else
    source_files | xargs -d '\n' stat -c %Y | sort -n | tail -n 1
  fi
}
