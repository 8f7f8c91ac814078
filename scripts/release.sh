#!/usr/bin/env bash
# scripts/release.sh [--dry-run]
#
# Releases the version that stands in CMakeLists.txt: checks that everything is committed, that the version has no tag yet
# and that the changelog tells of it, runs every test, makes the package and tags the commit. Nothing is published.
#   --dry-run   all of it but the tag
set -euo pipefail
. "$(dirname "$0")/common.sh"
cd "$root"

dry_run=no
case ${1-} in
    --dry-run) dry_run=yes ;;
    --help) sed -n '2,6s/^# \{0,1\}//p' "$0"; exit 0 ;;
    '') ;;
    *) fail "nothing is known of $1" ;;
esac

# What stands in the changelog below the heading that begins so, up to the next heading.
changes() {
    awk -v heading="## [$1]" 'index($0, "## ") == 1 { inside = index($0, heading) == 1; next } inside && NF' CHANGELOG.md \
        | grep -v '^\[' || true
}

version=$(sed -n 's/^project(.* VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
tag=v$version
say "Checking $tag"
[ -z "$(git status --porcelain)" ] || fail "there are changes that are not committed: see git status"
! git rev-parse --quiet --verify "refs/tags/$tag" >/dev/null || fail "$tag is tagged already: raise VERSION in CMakeLists.txt"
[ -n "$(changes "$version")" ] || fail "CHANGELOG.md has no entry of $version"
[ -z "$(changes Unreleased)" ] || fail "CHANGELOG.md has changes under Unreleased: move them to $version"

"$root/scripts/test.sh"
"$root/scripts/package.sh"
if [ "$dry_run" = yes ]; then
    say "A dry run: $tag is not tagged"
else
    git tag --annotate "$tag" --message "Tarrow $version"
    say "Tagged $tag; publish it with: git push origin $tag"
fi
