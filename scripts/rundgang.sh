#!/bin/sh
# Walks the main job in the terminal: from a source text to a programmed and verified (simulated)
# EPROM. run.sh has built what it needs.
set -eu
cd "$(dirname "$0")/.."

cli=build/release/bin/varnholt-cli
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
source=data/samples/Introduction.asm

schritt() { printf '\n== %s\n' "$1"; }

schritt "1. Assembling $source"
"$cli" assemble "$source" -o "$dir/intro.bin" -o "$dir/intro.hex" --list "$dir/intro.l51"
echo "Done: no errors. The image was saved as a binary and as an Intel-HEX file."

schritt "2. The listing of the program itself (number, address, bytes, text)"
# The first lines of a list are the definitions of the processor file; they are left out here.
grep -v '	DEF ' "$dir/intro.l51" | head -n 40

schritt "3. Programming it into a simulated 27C256 EPROM"
"$cli" program "$source" --device 27C256 --port "sim:$dir/eprom.bin" --trace "$dir/port.txt"
echo "The board took $(wc -l < "$dir/port.txt") port operations; each byte was checked after its pulse."

schritt "4. Reading the EPROM back"
"$cli" read --device 27C256 --port "sim:$dir/eprom.bin" -o "$dir/back.bin"
echo "Done: 32768 bytes were read."

schritt "5. Comparing what was read with the assembled program"
"$cli" compare "$dir/intro.bin" "$dir/back.bin"

printf '\nThat was the whole road from text to chip. Go on with: %s --help\n' "$cli"
