#!/usr/bin/env node
// Measures the page in Chromium: page.mjs [PICTURE_BENCH], the native benchmark to compare with.
// Build the page before, and install the packages of browsers/ (`./test page` does both).
import { execFileSync } from 'node:child_process';
import { readFileSync, writeFileSync } from 'node:fs';
import { createServer } from 'node:http';
import { once } from 'node:events';
import { brotliCompressSync, constants } from 'node:zlib';

import { Chromium } from '../browsers/bidi.mjs';
import { copyWith, kPage } from '../browsers/copy.mjs';
import { Program, Pointing } from '../browsers/program.mjs';

const kView = [1920, 1083]; // here the picture is 810 pixels wide, as in the native benchmark
const kStarts = 21;

// When the frame began and when the picture was put there. While `frames` is a list, they are kept
// there instead of being shown by the browser.
const kWatch = `{
  globalThis.frames = null;
  const ask = (globalThis.askForFrame = requestAnimationFrame);
  globalThis.requestAnimationFrame = (then) => (frames ? frames.push(then) : ask((now) => {
    globalThis.frameBegun = performance.now();
    then(now);
  }));
  const put = CanvasRenderingContext2D.prototype.putImageData;
  CanvasRenderingContext2D.prototype.putImageData = function (...given) {
    put.apply(this, given);
    globalThis.picturePut = performance.now();
    globalThis.firstPicture ??= picturePut;
  };
}`;

// A page that shows nothing but an empty canvas of that size.
const kEmpty = `<!doctype html><title>empty</title><canvas width=810 height=810></canvas>
<script>requestAnimationFrame(() => {
  const canvas = document.querySelector('canvas').getContext('2d', { alpha: false });
  canvas.putImageData(new ImageData(810, 810), 0, 0);
  globalThis.firstPicture = performance.now();
})</script>`;

// The times of what is done in an event, and that with what the frame after it takes until the
// picture is put, of many.
const measure = (times, deed) => `(async () => {
  const taken = [];
  for (let time = 0; time < ${times}; ++time) {
    const begin = performance.now();
    (${deed})(time);
    const event = performance.now() - begin;
    await new Promise((resolve) => { askForFrame(() => setTimeout(resolve)); });
    taken.push([event, event + picturePut - frameBegun]);
  }
  return taken;
})()`;

// The same with event after event and no browser's frame between them, as in the native benchmark.
const measureWork = (times, deed) => `(() => {
  const taken = [];
  globalThis.frames = [];
  for (let time = 0; time < ${times}; ++time) {
    const begin = performance.now();
    (${deed})(time);
    for (const show of frames.splice(0)) show(begin);
    taken.push(picturePut - begin);
  }
  globalThis.frames = null;
  return taken;
})()`;

const median = (numbers) => numbers.sort((a, b) => a - b)[Math.floor(numbers.length / 2)];
const ms = (number) => `${number.toFixed(3)} ms`;

// Isolated from all others, a page has a clock of 5 microseconds instead of 100.
async function serve(file) {
  const server = createServer((_, reply) => {
    reply.writeHead(200, { 'Content-Type': 'text/html', 'Cross-Origin-Opener-Policy': 'same-origin',
      'Cross-Origin-Embedder-Policy': 'require-corp' }).end(readFileSync(file));
  }).listen(0, '127.0.0.1');
  await once(server, 'listening');
  return { server, address: `http://127.0.0.1:${server.address().port}` };
}

const change = `(time) => {
  const bar = document.getElementById('syxnotikamp');
  bar.value = 1 + (time % 60);
  bar.dispatchEvent(new Event('input', { bubbles: true }));
}`;
const step = "() => document.getElementById('VIMA').click()";

// Out and back on the sketch, as in the native benchmark.
async function runTo(program, steps) {
  const mouse = new Pointing(program, 'mouse');
  const scroll = (id, value) => program.evaluate(`(() => {
    const bar = document.getElementById('${id}');
    bar.value = ${value};
    bar.dispatchEvent(new Event('input', { bubbles: true }));
  })()`);
  await scroll('arxikives', 2);
  await scroll('epitaxyno', -1);
  await mouse.click('campyles');
  await mouse.click('Option2');
  await scroll('vimatimi', 300);
  await mouse.click('Command1');
  await program.evaluate(`(() => {
    for (let step = 0; step < ${steps}; ++step) document.getElementById('VIMA').click();
  })()`);
}

function nativeTime(bench) {
  const report = execFileSync(bench, ['--benchmark_filter=FactorsScene/810',
    '--benchmark_format=json'], { stdio: ['ignore', 'pipe', 'ignore'] });
  return JSON.parse(report).benchmarks[0].cpu_time / 1000;
}

const engine = await new Chromium().start();
const program = new Program();
program.engine = engine;
const watched = copyWith('watched', kWatch);
const { server, address } = await serve(new URL(watched));
const rows = [];

const page = readFileSync(kPage);
const quality = { params: { [constants.BROTLI_PARAM_QUALITY]: 11 } };
rows.push(['the file', `${(page.length / 1000).toFixed(1)} kB`, '160 kB']);
const packed = brotliCompressSync(page, quality);
rows.push(['by brotli', `${(packed.length / 1000).toFixed(1)} kB`, '60 kB']);

await engine.resize(...kView);
await program.open(address);
const { width } = await program.look();
const scenes = (await program.evaluate(measure(900, change))).slice(300);
rows.push([`factors scene, ${width}x${width}`, ms(median(scenes.map(([, put]) => put))), '1 ms']);
const work = median((await program.evaluate(measureWork(3000, change))).slice(1000));
rows.push(['one after the other', ms(work), '']);
if (process.argv[2]) {
  const native = nativeTime(process.argv[2]);
  rows.push(['against the native one', `${(work / native).toFixed(2)} (${ms(native)})`, '2.5']);
}
await runTo(program, 12350);
const steps = await program.evaluate(measure(100, step));
rows.push(['step at N = 12,500', ms(median(steps.map(([event]) => event))), '0.25 ms']);
rows.push(['with its frame', ms(median(steps.map(([, put]) => put))), '']);

const empty = new URL('empty.html', watched);
writeFileSync(empty, kEmpty);
const starts = { [watched]: [], [empty.href]: [] };
for (let time = 0; time < kStarts; ++time) {
  for (const [url, taken] of Object.entries(starts)) {
    await engine.open(url);
    await engine.waitFor('globalThis.firstPicture');
    taken.push(await engine.evaluate('firstPicture'));
  }
}
const [own, others] = Object.values(starts).map(median);
rows.push(['first picture', `${ms(own)} (empty: ${ms(others)})`, ms(1.3 * others + 60)]);

console.log(await engine.browser.version());
console.table(Object.fromEntries(rows.map(([what, measured, most]) => [what, { measured, most }])));
server.close();
await engine.close();
