// What the engine tells an editing surface about itself after each page it shows
// and on each change: whether boxes snap to the grid, whether the details show and
// whether it is a design surface, where boxes are selected and moved as a whole
// rather than by their edge. A page in browse mode is told that it is not edited,
// and shows none of it.

// args: editing, snap, details, design.
function ztSetSurface(args) {
    ztSetMover({enabled: args.editing && !args.design, snap: args.snap});
    ztSetDesign({on: args.editing && args.design, snap: args.snap});
    ztSetDetails({on: args.editing && args.details});
    return {ok: true};
}

// Our sheets are adopted by the document rather than put into it: no node of the
// page changes, and none is written or recorded.
function ztAdopt(sheet, on) {
    const others = document.adoptedStyleSheets.filter(adopted => adopted !== sheet);
    document.adoptedStyleSheets = on ? others.concat(sheet) : others;
}
