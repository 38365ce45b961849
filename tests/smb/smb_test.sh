#!/usr/bin/env bash
# The index on a real SMB share seen from two desktops (two smbnetfs mounts of one Samba
# share on loopback): it is written and replaced there, also while the other desktop has
# it open, dated no later than the listing that made it; a document changed on the other
# desktop during a listing is read again next time; a temporary file of another machine
# is left alone.
# Usage: smb_test.sh BIN_DIR (docmanager and docmanager-samples). Exit 77: no share here.
set -euo pipefail
bin=$1
here=$(cd "$(dirname "$0")" && pwd)
if [[ -z ${SMBSHARE_ROOT:-} ]]; then
  exec "$here/smbshare.sh" run "$0" "$@"
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
desk1=$SMBSHARE_MNT1 desk2=$SMBSHARE_MNT2 server=$SMBSHARE_DIR
failures=0
fail() { echo "FAIL: $*" >&2; failures=$((failures + 1)); }
list() { env -u DISPLAY -u WAYLAND_DISPLAY XDG_CACHE_HOME="$work/cache" "$bin/docmanager" --list --format tsv --columns 1,3 "$1"; }
title_of() { list "$1" | awk -F'\t' -v n="$2" '$1 == n { print $2 }'; }

"$bin/docmanager-samples" "$work/a" 12 --seed 1 >/dev/null
"$bin/docmanager-samples" "$work/b" 12 --seed 2 >/dev/null
cp "$work"/a/*.odt "$work"/a/*.docx "$work"/a/*.pdf "$server/"
doc=$(cd "$server" && ls ./*.odt | head -1) doc=${doc#./}
old_title=$(title_of "$desk1" "$doc")
new_title=$(list "$work/b" | awk -F'\t' '$1 ~ /\.odt$/ { print $2; exit }')
new_file=$(cd "$work/b" && grep -l . ./*.odt | head -1)

echo "1. The first listing writes the index on the share, dated before it began."
rm -f "$server/.docindex"
began=$(date +%s)
list "$desk1" >"$work/list1"
[[ -f $server/.docindex ]] || fail "no index on the share after a listing"
[[ -f $server/.docindex ]] && (($(stat -c %Y "$server/.docindex") <= began)) ||
  fail "the index is dated after the listing began"
list "$desk2" >"$work/list2"
cmp -s "$work/list1" "$work/list2" || fail "the other desktop lists other rows"

echo "2. A document replaced on desktop 2 while it holds the index open: desktop 1 replaces the index."
sleep 1.1
cp "$work/b/$new_file" "$desk2/$doc"
(exec 3<"$desk2/.docindex" && sleep 0.4) &
sleep 0.1
[[ $(title_of "$desk1" "$doc") == "$new_title" ]] || fail "the changed document shows its old title"
wait
grep -q "$new_title" "$server/.docindex" || fail "the index was not replaced"
[[ -z $(find "$server" -name '.docindex.tmp-*') ]] || fail "a temporary index was left behind"

echo "3. A temporary file of another machine stays; one of this machine's dead writer goes."
host=$(hostname | tr -c 'A-Za-z0-9.\n' '_')
touch "$server/.docindex.tmp-otherdesk-4242-0-1" "$server/.docindex.tmp-$host-1073741000-0-1"
rm "$desk1/$(cd "$server" && ls ./*.pdf | head -1)"
list "$desk1" >/dev/null
[[ -e $server/.docindex.tmp-otherdesk-4242-0-1 ]] || fail "another machine's temporary file was removed"
[[ ! -e $server/.docindex.tmp-$host-1073741000-0-1 ]] || fail "a dead writer's temporary file was kept"
rm -f "$server/.docindex.tmp-otherdesk-4242-0-1"

echo "4. A document changed on desktop 2 while desktop 1 lists is read again next time."
titles=("$old_title" "$new_title") files=("$work/a/$doc" "$work/b/$new_file")
for round in 0 1 2 3 4 5; do
  which=$(((round + 1) % 2))
  sleep 1.1
  list "$desk1" >/dev/null &
  sleep "0.0$((round * 2))"
  cp "${files[$which]}" "$desk2/$doc.new" && mv -f "$desk2/$doc.new" "$desk2/$doc"
  wait
  sleep 1.2  # what the clients keep of the file's times has expired
  got=$(title_of "$desk1" "$doc")
  [[ $got == "${titles[$which]}" ]] || fail "round $round: '$got' instead of '${titles[$which]}'"
done

((failures == 0)) && echo "every check passed"
