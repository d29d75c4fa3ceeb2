// The program: how it comes out of the page, and how it is called.
export let program;
export const duties = []; // what an animation frame is for
let frame = 0;
let ended = false;

export async function load(page) {
  const packed = atob(document.getElementById('program').textContent);
  const bytes = Uint8Array.from(packed, (letter) => letter.charCodeAt(0));
  const unpacked = new Blob([bytes]).stream().pipeThrough(new DecompressionStream('gzip'));
  const proc_exit = () => { throw new Error('the program has stopped'); };
  program = (await WebAssembly.instantiate(await new Response(unpacked).arrayBuffer(),
    { page, wasi_snapshot_preview1: { proc_exit } })).instance.exports;
  program._initialize();
}

// The text at a place of the program's memory. The memory may grow and then is another one.
const decoder = new TextDecoder();
export function textAt(at) {
  const memory = new Uint8Array(program.memory.buffer, at);
  return decoder.decode(memory.subarray(0, memory.indexOf(0)));
}

export function wake() {
  if (ended) return;
  frame ||= requestAnimationFrame(() => {
    frame = 0;
    for (const duty of duties) duty();
  });
}

export function stop() {
  ended = true;
  cancelAnimationFrame(frame);
}

// Tells the program what the user does to an element. What it changes then is shown in the next
// animation frame, which also comes for the timers that it may have started.
export function tell(element, event, ...values) {
  const name = element && element.kind + event;
  if (!program[name]) return false;
  wake();
  return program[name](element.at, ...values);
}

export const shiftOf = ({ shiftKey, ctrlKey, altKey }) => shiftKey + 2 * ctrlKey + 4 * altKey;
