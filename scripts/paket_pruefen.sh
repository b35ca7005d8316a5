#!/bin/sh
# Installs a Debian package of Varnholt (default: that in build/release) into a fresh minimal Debian 12 and
# starts both programs there as an ordinary user. Needs root, debootstrap and the system's own
# package source.
set -eu
cd "$(dirname "$0")/.."
. scripts/pakete.sh

fehler() { echo "$1" >&2; exit 1; }

[ "$(id -u)" -eq 0 ] || fehler "This check installs a system into a folder: run it as root."
paket=$(realpath "${1:-$(ls build/release/varnholt_*.deb)}")
pakete_sichern debootstrap

# The first package source of the running system that has this release.
quelle=$(apt-get indextargets --format '$(CODENAME) $(REPO_URI)' 'Created-By: Packages' |
    sed -n 's/^bookworm //p' | head -n 1)
[ -n "$quelle" ] || fehler "No package source of Debian 12 in the configuration of apt."

wurzel=$(mktemp -d)
trap 'rm -rf --one-file-system "$wurzel"' EXIT
chmod 755 "$wurzel"

drinnen() { chroot "$wurzel" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 "$@"; }
benutzer() { drinnen HOME=/home/tester QT_QPA_PLATFORM=offscreen setpriv --reuid 1000 --regid 1000 --clear-groups "$@"; }

echo "== A fresh Debian 12"
debootstrap --variant=minbase bookworm "$wurzel" "$quelle" >"$wurzel.log" 2>&1 ||
    { tail -n 20 "$wurzel.log" >&2; rm -f "$wurzel.log"; fehler "debootstrap failed."; }
rm -f "$wurzel.log"

echo "== Installing the package"
cp "$paket" "$wurzel/root/varnholt.deb"
drinnen DEBIAN_FRONTEND=noninteractive apt-get update -qq
drinnen DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    /root/varnholt.deb >"$wurzel/root/install.log" 2>&1 ||
    { tail -n 20 "$wurzel/root/install.log" >&2; fehler "The package can't be installed."; }
mkdir -p "$wurzel/home/tester"
chown 1000:1000 "$wurzel/home/tester"

echo "== The command line"
benutzer varnholt-cli --version
benutzer varnholt-cli assemble /usr/share/varnholt/samples/Introduction.asm -o /tmp/intro.hex
[ -s "$wurzel/tmp/intro.hex" ] || fehler "The sample was not assembled."

echo "== The desktop program"
benutzer varnholt --version
# With no argument it stays, waiting for its user, until it is stopped.
status=0
benutzer timeout 8 varnholt >"$wurzel/root/start.log" 2>&1 || status=$?
[ "$status" -eq 124 ] || { cat "$wurzel/root/start.log" >&2; fehler "It ended by itself, status $status."; }
[ -e "$wurzel/home/tester/.local/share/varnholt/Spec.ini" ] || fehler "The program folder was not filled."
[ ! -e "$wurzel/home/tester/.local/share/applications/varnholt.desktop" ] ||
    fehler "It registered itself again beside the package."

echo "== Removing the package"
drinnen DEBIAN_FRONTEND=noninteractive apt-get remove -y -qq varnholt >/dev/null 2>&1
[ ! -e "$wurzel/usr/share/varnholt" ] || fehler "Files of the package were left behind."
echo "The package installs, starts and goes again."
