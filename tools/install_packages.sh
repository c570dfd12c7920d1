#!/usr/bin/env bash
# Installs the Debian packages named as arguments that are not there yet.
set -euo pipefail
missing=()
for package in "$@"; do
  dpkg -s "$package" 2>/dev/null | grep -q '^Status: install ok installed' || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0
sudo=()
[ "$(id -u)" = 0 ] || sudo=(sudo)
echo "installing: ${missing[*]}" >&2
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get -o DPkg::Lock::Timeout=300 update -qq >&2
"${sudo[@]}" apt-get -o DPkg::Lock::Timeout=300 install -y -qq --no-install-recommends "${missing[@]}" >&2
