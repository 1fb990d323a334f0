// What the engine tells an editing surface about itself after each page it shows
// and on each change: whether boxes snap to the grid and whether the details show.
// A page in browse mode is told that it is not edited, and shows neither.

// args: editing, snap, details.
function ztSetSurface(args) {
    ztSetMover({enabled: args.editing, snap: args.snap});
    ztSetDetails({on: args.editing && args.details});
    return {ok: true};
}
