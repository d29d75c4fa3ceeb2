// A folder for all that is written while browsers are at work. It goes with this process, also when
// that is interrupted.
import { mkdtempSync, rmSync } from 'node:fs';
import { constants, tmpdir } from 'node:os';

export const folder = mkdtempSync(`${tmpdir()}/page-`);
process.env.TMPDIR = folder; // the browsers write there, too

const clear = () => rmSync(folder, { recursive: true, force: true, maxRetries: 10 });
process.on('exit', clear);

// The browsers are ended by listeners of their own, which must come before.
function interrupt(signal) {
  process.off('exit', clear);
  process.on('exit', clear);
  process.exit(128 + constants.signals[signal]);
}
for (const signal of ['SIGHUP', 'SIGINT', 'SIGTERM']) process.on(signal, interrupt);
