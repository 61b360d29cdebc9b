# Sourced, not run; wants $work. A folder of results is not deleted before the script's end: next to files deleted
# within the last minutes ext4 looks long for a place for new ones, which would count as the next run's time.
# shellcheck shell=bash disable=SC2154
mkdir -p "$work/aside"
trap 'rm -rf "$work/aside" "$work/out"' EXIT
put_aside() { [ ! -e "$1" ] || mv "$1" "$(mktemp -d "$work/aside/XXXXXX")"; }
