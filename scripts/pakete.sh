# Installs what is missing of the given Debian packages; does nothing, and needs no network, when
# all of them are there. Sourced by run.sh and test.sh.

fehlende_pakete() {
    for paket in "$@"; do
        dpkg-query -W -f='${Status}\n' "$paket" 2>/dev/null | grep -q '^install ok installed$' ||
            printf '%s\n' "$paket"
    done
}

als_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null 2>&1; then
        sudo "$@"
    else
        echo "Missing packages can only be installed by root or with sudo." >&2
        return 1
    fi
}

pakete_sichern() {
    fehlend=$(fehlende_pakete "$@")
    [ -z "$fehlend" ] && return 0
    echo "Installing:" $fehlend
    als_root apt-get update -qq
    # shellcheck disable=SC2086
    als_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $fehlend >/dev/null
}
