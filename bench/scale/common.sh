# Shared by the trials: namespaces of their own, in which all daemons end with the script and ports and mounts disturb
# nobody; a read-only installation; documents, and the list of them. To be sourced, as root.
source "$(dirname "${BASH_SOURCE[0]}")/../../scripts/common.sh"

if [ -z "${QUINTAR_TRIAL:-}" ]; then
    install_packages build scale
    [ -f build/release/build.ninja ] || cmake --preset release
    cmake --build --preset release --target quintar EditInitialView pdfengine
    exec unshare --mount --pid --net --uts --ipc --fork --kill-child --mount-proc \
        env -u DISPLAY QUINTAR_TRIAL="$(mktemp -d)" "$project/bench/scale/${0##*/}" "$@"
fi
work=$QUINTAR_TRIAL
trap 'umount "$work/quintar" 2>/dev/null; cd / && rm -rf "$work"' EXIT
ip link set lo up
ip address add 192.0.2.1/32 dev lo # with loopback addresses alone, names do not resolve
mount -t tmpfs none /run # where daemons keep their sockets

cmake --install build/release --prefix "$work/quintar" >/dev/null
mount --bind "$work/quintar" "$work/quintar"
mount -o remount,bind,ro "$work/quintar"
export PATH="$work/quintar/bin:$PATH"
export HOME="$work/quintar" # as read-only as the program

chmod 755 "$work"
cp tests/data/manuals.xqq "$work/manuals.xqq"
cd "$work"
# As many names as folders, one with a line break; three are no documents at all.
PYTHONDONTWRITEBYTECODE=1 PYTHONPATH="$project/bench" python3 - "${DOCUMENTS:-4000}" <<'PYTHON'
import inputs, os, sys
for n in range(int(sys.argv[1])):
    folder = f"in/{n // 50:04}"
    os.makedirs(folder, exist_ok=True)
    inputs.document(f"{folder}/manual\n0.pdf" if n == 7 else f"{folder}/manual{n % 50}.pdf", 4, 20_000, n)
for n in (3, 777, 1111):
    open(f"in/{n // 50:04}/manual{n % 50}.pdf", "w").write("no document")
PYTHON
find in -name '*.pdf' -print0 | sort -z > all.list

say() {
    printf '\n--- %s\n' "$*"
}

# Documents by status, over all reports.
count() {
    cat reports/*.jsonl | jq -r .status | sort | uniq -c
}

# Ends with an error unless each document has one line and the results are those of the good ones.
check() {
    local documents lines results
    documents=$(tr -cd '\0' < all.list | wc -c)
    lines=$(cat reports/*.jsonl | jq -c '.fileBytes // .file' | sort -u | wc -l)
    results=$(find out -name '*.pdf' -printf x | wc -c)
    echo "$documents documents, $lines with a line, $results results, $(find . -name '.quintar-*' | wc -l) strays"
    [ "$documents" -eq "$lines" ] && [ "$results" -eq $((documents - ${1:-3})) ] && [ -z "$(find . -name '.quintar-*')" ]
}
