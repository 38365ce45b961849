#!/usr/bin/env bash
# A real SMB share on loopback, mounted twice as two desktops would see it.
#
# start [ROOT]: runs a private smbd (its own smb.conf, passdb, state and logs under ROOT,
# by default a new /tmp/smbshare.XXXXXX; a free port on 127.0.0.1 only; no NetBIOS)
# serving the folder ROOT/share to a test user, and mounts that share with two separate
# smbnetfs (FUSE) instances, each with its own HOME and configuration, at ROOT/desk1 and
# ROOT/desk2. It returns once both mounts answer and prints assignments for eval:
#   SMBSHARE_ROOT  SMBSHARE_DIR (the served folder)  SMBSHARE_MNT1  SMBSHARE_MNT2
# stop [ROOT]: unmounts both, ends smbd and the smbnetfs processes, removes ROOT
# (default $SMBSHARE_ROOT).
# run CMD...: start, run CMD with those variables exported, stop; exits with CMD's status.
#
#   eval "$(tests/smb/smbshare.sh start)"; ...; tests/smb/smbshare.sh stop "$SMBSHARE_ROOT"
#   tests/smb/smbshare.sh run sh -c 'ls "$SMBSHARE_MNT1"'
#
# Exits with 77 (skip) when it cannot work here: not root (smbd needs it), samba,
# smbnetfs or fuse3 missing (scripts/setup installs them), no /dev/fuse, or a FUSE mount
# is not permitted. Nothing listens or connects beyond 127.0.0.1.
# SMBSHARE_TIMEOUT: seconds to wait for smbd and each mount (15).
# SMBSHARE_SMBNETFS_CONF: lines added to both smbnetfs.conf files, e.g.
# 'neg_cache_timeout 100' (after a failed request smbnetfs refuses everything on the share
# for 3 s by default; note that 'neg_cache "false"' hangs smbnetfs 0.6.3).
set -euo pipefail

user=root password=smbshare-test
timeout_s=${SMBSHARE_TIMEOUT:-15}

skip() { echo "smbshare: skipped: $*" >&2; exit 77; }
die() { echo "smbshare: $*" >&2; exit 1; }

preflight() {
  [[ $(id -u) -eq 0 ]] || skip "must run as root (smbd)"
  local c
  for c in smbd pdbedit smbnetfs fusermount; do
    command -v "$c" >/dev/null || skip "$c not installed (scripts/setup installs samba, smbnetfs, fuse3)"
  done
  [[ -c /dev/fuse && -r /dev/fuse && -w /dev/fuse ]] || skip "no usable /dev/fuse"
}

# Polls "$@" every 50 ms until it succeeds, it sets gave_up, or timeout_s runs out.
wait_for() {
  local end=$((SECONDS + timeout_s))
  gave_up=0
  until "$@" 2>/dev/null; do
    ((SECONDS < end && !gave_up)) || return 1
    sleep 0.05
  done
}

# Reads the pid in file $1 into pid ($(<file) would end the script when it is missing).
read_pid() { pid=; { read -r pid <"$1"; } 2>/dev/null; [[ -n $pid ]]; }

# True while process $1 runs (a zombie waiting for init to reap it does not count).
alive() {
  local stat
  { read -r stat <"/proc/$1/stat"; } 2>/dev/null || return 1
  [[ ${stat##*) } != Z* ]]
}

port_busy() { (exec 3<>"/dev/tcp/127.0.0.1/$1") 2>/dev/null; }

mounted() { grep -qs " $1 fuse" /proc/self/mounts; }

# True once smbd of root $1 listens on port $2; gives up if it ended.
smbd_ready() {
  local pid
  read_pid "$1/pid/smbd.pid" || return 1
  alive "$pid" || { gave_up=1; return 1; }
  port_busy "$2"
}

# True once mount $2 under root $1 lists the share; gives up if its smbnetfs ended.
mount_ready() {
  mounted "$1/desk$2" && timeout 2 ls -A "$1/desk$2" >/dev/null && return 0
  local pid
  read_pid "$1/pid/smbnetfs$2.pid" && alive "$pid" || gave_up=1
  return 1
}

start() {
  preflight
  local root=${1:-$(mktemp -d /tmp/smbshare.XXXXXX)}
  root=$(realpath -m "$root")
  [[ ! -e $root/smb.conf ]] || die "$root is already in use"
  mkdir -p "$root"/{share,private,lock,state,cache,pid,log,desk1,desk2}
  chmod 700 "$root/private"
  echo "$root" >"$root/.smbshare"

  # A share name of its own, so a mount never lands on another instance's smbd.
  local share port=4450
  share=$(basename "$root" | tr -c 'A-Za-z0-9_\n-' _)
  # smbd listens with SO_REUSEPORT, so a port in use would be shared: one start at a time
  # picks a port, until its smbd listens (a lock on this script, released below).
  exec 9<"${BASH_SOURCE[0]}"
  flock 9
  while port_busy "$port"; do
    ((++port < 4550)) || { stop "$root"; die "no free port in 4450-4549"; }
  done

  cat >"$root/smb.conf" <<EOF
[global]
  server role = standalone server
  workgroup = SMBSHARE
  netbios name = SMBSHARE
  interfaces = 127.0.0.1
  bind interfaces only = yes
  smb ports = $port
  disable netbios = yes
  disable spoolss = yes
  load printers = no
  printcap name = /dev/null
  map to guest = never
  passdb backend = tdbsam:$root/private/passdb.tdb
  private dir = $root/private
  lock directory = $root/lock
  state directory = $root/state
  cache directory = $root/cache
  pid directory = $root/pid
  ncalrpc dir = $root/state/ncalrpc
  log file = $root/log/smbd.log
  log level = 1
[$share]
  path = $root/share
  read only = no
EOF
  printf '%s\n%s\n' "$password" "$password" |
    pdbedit -s "$root/smb.conf" -a -u "$user" -t >"$root/log/pdbedit.log" 2>&1 ||
    { cat "$root/log/pdbedit.log" >&2; stop "$root"; die "pdbedit failed"; }
  smbd -D -s "$root/smb.conf" >"$root/log/smbd.out" 2>&1 9<&- ||
    { cat "$root/log/smbd.out" >&2; stop "$root"; die "smbd did not start"; }
  wait_for smbd_ready "$root" "$port" || {
    tail -n 20 "$root/log/smbd.out" "$root/log/smbd.log" >&2 || true
    stop "$root"
    die "smbd does not listen on 127.0.0.1:$port"
  }
  exec 9<&-

  local i home
  for i in 1 2; do
    home=$root/home$i
    mkdir -p "$home/.smb"
    cat >"$home/.smb/smb.conf" <<EOF
[global]
  workgroup = SMBSHARE
  disable netbios = yes
  name resolve order = host
EOF
    cat >"$home/.smb/smbnetfs.conf" <<EOF
smb_query_browsers "false"
use_libsecret "false"
stat_workaround_depth 0
auth "127.0.0.1" "$user" "$password"
${SMBSHARE_SMBNETFS_CONF:-}
EOF
    chmod 600 "$home/.smb/smb.conf" "$home/.smb/smbnetfs.conf"
    # The subdir module shows the share itself at the mountpoint.
    (cd / && HOME=$home exec smbnetfs -f "$root/desk$i" \
      -o "modules=subdir,subdir=/127.0.0.1:$port/$share,log_file=$root/log/smbnetfs$i.log" \
      </dev/null >"$root/log/smbnetfs$i.out" 2>&1) &
    echo $! >"$root/pid/smbnetfs$i.pid"
  done
  for i in 1 2; do
    if ! wait_for mount_ready "$root" "$i"; then
      local out
      out=$(cat "$root/log/smbnetfs$i.out" "$root/log/smbnetfs$i.log" 2>/dev/null || true)
      stop "$root"
      if grep -qiE 'not permitted|permission denied|device not found|/dev/fuse' <<<"$out"; then
        skip "FUSE mount not permitted here: $out"
      fi
      die "mount $root/desk$i does not answer: $out"
    fi
  done
  printf 'SMBSHARE_ROOT=%q\nSMBSHARE_DIR=%q\nSMBSHARE_MNT1=%q\nSMBSHARE_MNT2=%q\n' \
    "$root" "$root/share" "$root/desk1" "$root/desk2"
}

# Ends the process in pid file $1: TERM, then KILL after 2 s.
end_pid() {
  local pid n=0
  read_pid "$1" || return 0
  kill "$pid" 2>/dev/null || true
  while alive "$pid" && ((n++ < 100)); do sleep 0.02; done
  kill -9 "$pid" 2>/dev/null || true
  rm -f "$1"
}

stop() {
  local root=${1:-${SMBSHARE_ROOT:-}}
  [[ -n $root && -f $root/.smbshare ]] || die "stop: '$root' is not a root made by start"
  local i ok=1
  for i in 1 2; do
    if mounted "$root/desk$i"; then
      fusermount -u "$root/desk$i" 2>/dev/null || fusermount -uz "$root/desk$i" || ok=0
    fi
    end_pid "$root/pid/smbnetfs$i.pid"
  done
  end_pid "$root/pid/smbd.pid"
  # Never delete through a mount that is still there.
  for i in 1 2; do ! mounted "$root/desk$i" || ok=0; done
  ((ok)) || die "stop: could not unmount under $root; left it in place"
  rm -rf --one-file-system "$root"
}

run() {
  (($#)) || die "run: no command"
  local vars
  vars=$(start)
  eval "$vars"
  export SMBSHARE_ROOT SMBSHARE_DIR SMBSHARE_MNT1 SMBSHARE_MNT2
  local rc=0
  "$@" || rc=$?
  stop "$SMBSHARE_ROOT"
  exit "$rc"
}

case ${1:-} in
  start) shift; start "$@" ;;
  stop) shift; stop "$@" ;;
  run) shift; run "$@" ;;
  *) echo "usage: $0 start [ROOT] | stop [ROOT] | run CMD [ARG...]" >&2; exit 2 ;;
esac
