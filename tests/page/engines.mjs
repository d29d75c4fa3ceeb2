// The three engines that learners have. What an engine or its driver can't do is in its `limits`,
// and a test asks there.
import { Chromium, Firefox } from './bidi.mjs';
import { WebKit } from './webkit.mjs';

const kKinds = { chromium: Chromium, firefox: Firefox, webkit: WebKit };
export const kEngines = (process.env.ENGINES ?? 'chromium firefox webkit').split(' ');
export const limitsOf = (name) => kKinds[name].limits;

// The device-pixel ratio is for WebKit, which can't change it later.
export const start = (name, ratio = 1) => new kKinds[name]().start(ratio);
