// The table commands. Each works on a grid of the table that holds the start of the
// selection: rows by columns, every slot naming the cell that covers it, so that
// rowspan and colspan are honoured and rows may be of unequal length. A command
// that cannot apply answers {ok: false} before it touches the page.

// grid.rows: the table's own rows; grid.slots[row][column]: the cell there, or
// nothing past the end of a short row; grid.places: each cell's first row and
// column and how many of each it covers; grid.width: the longest row.
function ztTableGrid(table) {
    const rows = Array.from(table.rows);
    const slots = rows.map(() => []);
    const places = new Map();
    rows.forEach((row, r) => {
        let c = 0;
        for (const cell of row.cells) {
            while (slots[r][c])
                ++c;
            // A span past the last row covers the rows there are; rowspan="0" all of them.
            const down = Math.min(cell.rowSpan || rows.length, rows.length - r);
            const across = Math.max(cell.colSpan, 1);
            for (let i = 0; i < down; ++i) {
                for (let j = 0; j < across; ++j)
                    slots[r + i][c + j] = cell;
            }
            places.set(cell, {row: r, col: c, rows: down, cols: across});
            c += across;
        }
    });
    const width = Math.max(0, ...slots.map(row => row.length));
    return {table, rows, slots, places, width};
}

// The cell and table that hold the start of the selection, and the cells of that
// table the selection touches. A range ending at the very start of a cell leaves
// that cell out, as nothing of it is selected.
function ztTableAtSelection() {
    const range = ztSelectionRange();
    if (!range)
        return null;
    const start = range.startContainer;
    const holder = start.nodeType === Node.ELEMENT_NODE ? start : start.parentNode;
    const cell = holder.closest('td, th');
    const table = cell && cell.closest('table');
    if (!table || !document.body || !document.body.contains(table))
        return null;
    const grid = ztTableGrid(table);
    if (!grid.places.has(cell))
        return null;
    const touched = each => range.intersectsNode(each) &&
        !(each.contains(range.endContainer) &&
          ztNothingBetween(each, 0, range.endContainer, range.endOffset));
    const selected = range.collapsed
        ? [cell]
        : [...grid.places.keys()].filter(each => each === cell || touched(each));
    return {grid, cell, selected};
}

function ztSetSpan(cell, name, count) {
    if (count > 1)
        cell[name] = count;
    else
        cell.removeAttribute(name.toLowerCase());
}

// An empty cell of the same kind as the one it stands beside, with something in it
// so that it can be seen and clicked.
function ztNewCell(like, rows, cols) {
    const cell = document.createElement(like.localName);
    cell.textContent = '\u00a0';
    ztSetSpan(cell, 'rowSpan', rows || 1);
    ztSetSpan(cell, 'colSpan', cols || 1);
    return cell;
}

// The first cell of row that begins right of column, or null at the end of the row.
function ztCellAfter(grid, row, column) {
    return Array.from(row.cells).find(each => grid.places.get(each).col > column) || null;
}

function ztShowsNothing(cell) {
    return !cell.textContent.replace(/\s/g, '') &&
        !cell.querySelector('img, hr, input, select, textarea, iframe, object, embed, table');
}

function ztCaretIn(node, atEnd) {
    const range = document.createRange();
    range.selectNodeContents(node);
    range.collapse(!atEnd);
    ztSelect(range);
}

// The caret goes to the cell now nearest the given slot, or where the table stood.
function ztCaretNear(grid, row, column, spot) {
    if (!grid.table.isConnected) {
        const range = document.createRange();
        if (spot.next && spot.next.parentNode === spot.parent)
            range.setStartBefore(spot.next);
        else
            range.setStart(spot.parent, spot.parent.childNodes.length);
        range.collapse(true);
        ztSelect(range);
        return;
    }
    const after = ztTableGrid(grid.table);
    const line = after.slots[Math.min(row, after.rows.length - 1)] || [];
    const cell = line[Math.min(column, line.length - 1)] || after.table.querySelector('td, th');
    ztCaretIn(cell || after.table, false);
}

function ztTableSpot(table) {
    return {parent: table.parentNode, next: table.nextSibling};
}

// Takes out the given rows of the grid. A cell that spans into a surviving row
// loses only the rows that go; one whose first row goes moves down into the next
// row that stays. Without rows the table goes.
function ztDeleteRows(grid, gone) {
    if (gone.size >= grid.rows.length) {
        grid.table.remove();
        return;
    }
    const moving = [...grid.places].sort((a, b) => a[1].col - b[1].col);
    for (const [cell, place] of moving) {
        const lost = ztCountIn(gone, place.row, place.rows);
        if (lost === 0 || lost === place.rows)
            continue;
        ztSetSpan(cell, 'rowSpan', place.rows - lost);
        if (gone.has(place.row)) {
            let stay = place.row;
            while (gone.has(stay))
                ++stay;
            grid.rows[stay].insertBefore(cell, ztCellAfter(grid, grid.rows[stay], place.col));
        }
    }
    for (const r of gone)
        ztRemoveRow(grid, grid.rows[r]);
}

// A section (thead, tbody, tfoot) left without rows goes with its last row.
function ztRemoveRow(grid, row) {
    const section = row.parentNode;
    row.remove();
    if (section !== grid.table && !section.rows.length)
        section.remove();
}

// How many of the count numbers from first are in the set.
function ztCountIn(set, first, count) {
    let inside = 0;
    for (let i = first; i < first + count; ++i)
        inside += set.has(i) ? 1 : 0;
    return inside;
}

// The rows or columns that the selected cells cover.
function ztCovered(found, along, count) {
    const covered = new Set();
    for (const cell of found.selected) {
        const place = found.grid.places.get(cell);
        for (let i = place[along]; i < place[along] + place[count]; ++i)
            covered.add(i);
    }
    return covered;
}

// Runs change on the table at the selection, or answers that it does not apply.
function ztTableCommand(change) {
    const found = ztTableAtSelection();
    if (!found)
        return {ok: false};
    return {ok: change(found, found.grid, found.grid.places.get(found.cell)) !== false};
}

Object.assign(ztCommands, {
    insertRow() {
        return ztTableCommand((found, grid, at) => {
            const added = document.createElement('tr');
            for (let c = 0; c < grid.width;) {
                const cell = grid.slots[at.row][c];
                const place = cell && grid.places.get(cell);
                if (place && place.row < at.row)
                    ztSetSpan(cell, 'rowSpan', place.rows + 1);
                else
                    added.appendChild(ztNewCell(cell || found.cell, 1, place && place.cols));
                // Past the cell, also where a malformed table lets spans overlap.
                c = place ? Math.max(c + 1, place.col + place.cols) : c + 1;
            }
            grid.rows[at.row].before(added);
        });
    },
    insertColumn() {
        return ztTableCommand((found, grid, at) => {
            const grown = new Set();
            grid.rows.forEach((row, r) => {
                const cell = grid.slots[r][at.col];
                const place = cell && grid.places.get(cell);
                if (!place || grown.has(cell))
                    return;
                if (place.col < at.col) {
                    ztSetSpan(cell, 'colSpan', place.cols + 1);
                    grown.add(cell);
                } else if (place.row === r) {
                    cell.before(ztNewCell(cell, place.rows, 1));
                }
            });
        });
    },
    insertCell() {
        return ztTableCommand(found => {
            found.cell.before(ztNewCell(found.cell));
        });
    },
    deleteRows() {
        return ztTableCommand((found, grid, at) => {
            const spot = ztTableSpot(grid.table);
            ztDeleteRows(grid, ztCovered(found, 'row', 'rows'));
            ztCaretNear(grid, at.row, at.col, spot);
        });
    },
    deleteColumns() {
        return ztTableCommand((found, grid, at) => {
            const spot = ztTableSpot(grid.table);
            const gone = ztCovered(found, 'col', 'cols');
            if (gone.size >= grid.width) {
                grid.table.remove();
            } else {
                for (const [cell, place] of grid.places) {
                    const lost = ztCountIn(gone, place.col, place.cols);
                    if (lost === place.cols)
                        cell.remove();
                    else if (lost)
                        ztSetSpan(cell, 'colSpan', place.cols - lost);
                }
                // A short row that lay wholly in the columns that went goes too.
                grid.rows.forEach((row, r) => {
                    const slots = grid.slots[r];
                    if (slots.length && slots.every((cell, c) => gone.has(c)))
                        ztRemoveRow(grid, row);
                });
            }
            ztCaretNear(grid, at.row, at.col, spot);
        });
    },
    deleteCells() {
        return ztTableCommand((found, grid, at) => {
            const spot = ztTableSpot(grid.table);
            const emptied = grid.rows.filter(row => row.cells.length &&
                Array.from(row.cells).every(cell => found.selected.includes(cell)));
            for (const cell of found.selected)
                cell.remove();
            if (!grid.rows.some(row => row.cells.length)) {
                grid.table.remove();
            } else if (emptied.length) {
                const after = ztTableGrid(grid.table);
                ztDeleteRows(after, new Set(emptied.map(row => after.rows.indexOf(row))));
            }
            ztCaretNear(grid, at.row, at.col, spot);
        });
    },
    // The selected cells must fill a rectangle of the grid exactly, and be more than one.
    mergeCells() {
        return ztTableCommand(found => {
            const {grid, selected} = found;
            if (selected.length < 2)
                return false;
            const places = selected.map(cell => grid.places.get(cell));
            const top = Math.min(...places.map(p => p.row));
            const left = Math.min(...places.map(p => p.col));
            const bottom = Math.max(...places.map(p => p.row + p.rows));
            const right = Math.max(...places.map(p => p.col + p.cols));
            for (let r = top; r < bottom; ++r) {
                for (let c = left; c < right; ++c) {
                    if (!selected.includes(grid.slots[r][c]))
                        return false;
                }
            }
            // The contents of every cell in reading order; cells that show nothing
            // (as new ones) add nothing.
            const first = grid.slots[top][left];
            const reading = selected.slice().sort((a, b) => {
                const p = grid.places.get(a), q = grid.places.get(b);
                return p.row - q.row || p.col - q.col;
            });
            const filled = reading.filter(cell => !ztShowsNothing(cell));
            if (filled.length && !filled.includes(first))
                first.replaceChildren();
            for (const cell of reading) {
                if (cell !== first && filled.includes(cell))
                    first.append(...cell.childNodes);
                if (cell !== first)
                    cell.remove();
            }
            ztSetSpan(first, 'rowSpan', bottom - top);
            ztSetSpan(first, 'colSpan', right - left);
            ztCaretIn(first, true);
        });
    },
    // A cell that covers more than one slot becomes one slot wide and high, and new
    // cells take the slots it gave up.
    splitCell() {
        return ztTableCommand((found, grid, at) => {
            if (at.rows * at.cols < 2)
                return false;
            const cell = found.cell;
            // The later attribute first: Undo puts them back in the reverse order.
            for (const name of cell.getAttributeNames().reverse()) {
                if (name === 'rowspan' || name === 'colspan')
                    cell.removeAttribute(name);
            }
            for (let r = at.row; r < at.row + at.rows; ++r) {
                const row = grid.rows[r];
                const before = r === at.row ? cell.nextSibling : ztCellAfter(grid, row, at.col);
                for (let c = r === at.row ? at.col + 1 : at.col; c < at.col + at.cols; ++c)
                    row.insertBefore(ztNewCell(cell), before);
            }
        });
    },
});
