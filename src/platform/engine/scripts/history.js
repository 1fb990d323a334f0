// The page's edit history: one list of steps that Undo and Redo walk, whatever made
// the change. The browser's own history knows only the browser's own editing
// commands, and the engine changes the page in other ways too (a pasted fragment
// lands as it was written, a table gains a row), so it cannot be the one. Instead a
// mutation observer records every change to the document as it happens, and a step
// is undone by playing its changes back in reverse.
//
// A command of the engine is one step. What the user does in the page (typing,
// dragging, the browser's own keys) gathers into one step until a pause of a second
// or the next command. The browser's own undo is kept out: it would play back a
// history that no longer matches the page.

const ztHistoryPause = 1000;
const ztHistoryDepth = 200;

function ztHistory() {
    let history = window.ztHistoryState;
    if (history && history.document === document)
        return history;
    if (history)
        history.observer.disconnect();
    history = {document, undo: [], redo: [], open: null, lastAt: 0};
    history.observer = new MutationObserver(records => ztTakeUserChanges(history, records));
    history.observer.observe(document, {
        subtree: true,
        childList: true,
        attributes: true,
        attributeOldValue: true,
        characterData: true,
        characterDataOldValue: true,
    });
    window.ztHistoryState = history;
    ztKeepBrowserUndoOut();
    return history;
}

// A fresh page starts with no history.
function ztHistoryReset() {
    if (window.ztHistoryState)
        window.ztHistoryState.observer.disconnect();
    window.ztHistoryState = null;
    ztHistory();
}

function ztInOwnElement(node) {
    for (let at = node; at; at = at.parentNode) {
        if (ztIsOwn(at))
            return true;
    }
    return false;
}

// The records as the history keeps them, without the engine's own marks.
function ztChanges(records) {
    const changes = [];
    for (const record of records) {
        if (ztInOwnElement(record.target))
            continue;
        if (record.type === 'childList') {
            const added = Array.from(record.addedNodes).filter(node => !ztIsOwn(node));
            const removed = Array.from(record.removedNodes).filter(node => !ztIsOwn(node));
            if (added.length || removed.length)
                changes.push({type: 'childList', target: record.target, added, removed,
                              next: record.nextSibling});
        } else {
            changes.push({type: record.type, target: record.target, name: record.attributeName,
                          oldValue: record.oldValue});
        }
    }
    return changes;
}

function ztPushStep(history, step) {
    history.undo.push(step);
    if (history.undo.length > ztHistoryDepth)
        history.undo.shift();
    history.redo = [];
}

function ztTakeUserChanges(history, records) {
    if (history.replaying)
        return;
    const changes = ztChanges(records);
    if (!changes.length)
        return;
    const now = Date.now();
    if (!history.open || now - history.lastAt > ztHistoryPause) {
        history.open = {changes: [], before: null};
        ztPushStep(history, history.open);
    }
    history.open.changes.push(...changes);
    history.lastAt = now;
}

// Changes not yet delivered to the observer belong to the user's step; the next
// change starts a new one.
function ztCloseUserStep(history) {
    ztTakeUserChanges(history, history.observer.takeRecords());
    history.open = null;
}

function ztSelectionMark() {
    const range = ztSelectionRange();
    return range ? range.cloneRange() : null;
}

// args of run are the command's; its changes become one step.
function ztRecorded(run) {
    const history = ztHistory();
    ztCloseUserStep(history);
    const before = ztSelectionMark();
    const answer = run();
    const changes = ztChanges(history.observer.takeRecords());
    if (changes.length)
        ztPushStep(history, {changes, before, after: ztSelectionMark()});
    return answer;
}

function ztAttribute(element, name) {
    return element.hasAttribute(name) ? element.getAttribute(name) : null;
}

function ztSetAttribute(element, name, value) {
    if (value === null)
        element.removeAttribute(name);
    else
        element.setAttribute(name, value);
}

function ztPlaceNodes(parent, nodes, before) {
    for (const node of nodes)
        parent.insertBefore(node, before && before.parentNode === parent ? before : null);
}

function ztTakeNodes(parent, nodes) {
    for (const node of nodes) {
        if (node.parentNode === parent)
            parent.removeChild(node);
    }
}

function ztUndoChange(change) {
    switch (change.type) {
    case 'characterData':
        change.newValue = change.target.data;
        change.target.data = change.oldValue;
        break;
    case 'attributes':
        change.newValue = ztAttribute(change.target, change.name);
        ztSetAttribute(change.target, change.name, change.oldValue);
        break;
    case 'childList':
        ztTakeNodes(change.target, change.added);
        ztPlaceNodes(change.target, change.removed, change.next);
        break;
    }
}

function ztRedoChange(change) {
    switch (change.type) {
    case 'characterData':
        change.target.data = change.newValue;
        break;
    case 'attributes':
        ztSetAttribute(change.target, change.name, change.newValue);
        break;
    case 'childList':
        ztTakeNodes(change.target, change.removed);
        ztPlaceNodes(change.target, change.added, change.next);
        break;
    }
}

// Where the selection goes after a step is played: where it was, when that part of
// the page is there, else at the change itself.
function ztRestoreSelection(mark, change) {
    if (mark && mark.startContainer.isConnected && mark.endContainer.isConnected) {
        ztSelect(mark);
        return;
    }
    let node = change.type === 'childList' ? (change.added[0] || change.removed[0] || change.target)
                                           : change.target;
    if (!node.isConnected)
        node = change.target;
    if (!node.isConnected || !document.body || !document.body.contains(node))
        return;
    const range = document.createRange();
    if (node.nodeType === Node.TEXT_NODE)
        range.setStart(node, node.data.length);
    else
        range.setStartAfter(node === document.body ? node.lastChild || node : node);
    range.collapse(true);
    ztSelect(range);
}

// Plays the last step of one list back and puts it on the other; false when the
// list is empty.
function ztReplay(forward) {
    const history = ztHistory();
    ztCloseUserStep(history);
    const step = (forward ? history.redo : history.undo).pop();
    if (!step)
        return {ok: false};
    history.replaying = true;
    try {
        if (forward)
            step.changes.forEach(ztRedoChange);
        else
            step.changes.slice().reverse().forEach(ztUndoChange);
        history.observer.takeRecords();
    } finally {
        history.replaying = false;
    }
    (forward ? history.undo : history.redo).push(step);
    ztRestoreSelection(forward ? step.after : step.before,
                       forward ? step.changes[step.changes.length - 1] : step.changes[0]);
    return {ok: true};
}

// The browser's undo keys and menu entries play our history instead. Installed
// once per document.
function ztKeepBrowserUndoOut() {
    if (window.ztUndoKeysWatched === document)
        return;
    window.ztUndoKeysWatched = document;
    const replay = forward => {
        if (document.designMode === 'on')
            ztReplay(forward);
    };
    document.addEventListener('keydown', event => {
        if (!(event.ctrlKey || event.metaKey) || event.altKey)
            return;
        const key = event.key.toLowerCase();
        if (key !== 'z' && key !== 'y')
            return;
        event.preventDefault();
        replay(key === 'y' || event.shiftKey);
    }, true);
    document.addEventListener('beforeinput', event => {
        if (event.inputType === 'historyUndo' || event.inputType === 'historyRedo') {
            event.preventDefault();
            replay(event.inputType === 'historyRedo');
        }
    }, true);
}

Object.assign(ztCommands, {
    undo() {
        return ztReplay(false);
    },
    redo() {
        return ztReplay(true);
    },
});
