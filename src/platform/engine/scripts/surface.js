// What the engine tells an editing surface about itself after each page it shows
// and on each change: whether boxes snap to the grid and whether the details show.
// A page in browse mode is told that it is not edited, and shows neither.

// args: editing, snap, details.
function ztSetSurface(args) {
    ztSetMover({enabled: args.editing, snap: args.snap});
    ztSetDetails({on: args.editing && args.details});
    return {ok: true};
}

// Our sheets are adopted by the document rather than put into it: no node of the
// page changes, and none is written or recorded.
function ztAdopt(sheet, on) {
    const others = document.adoptedStyleSheets.filter(adopted => adopted !== sheet);
    document.adoptedStyleSheets = on ? others.concat(sheet) : others;
}
