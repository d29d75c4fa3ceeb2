// The page as learners have it, in each engine. An engine is started once, and once more for each
// ratio that it can't change to.
import { after, before, describe } from 'node:test';

import { testAccess } from './access.mjs';
import { testCases } from './cases.mjs';
import { kEngines, limitsOf, start } from './engines.mjs';
import { testHands } from './hands.mjs';
import { testLayout } from './layout.mjs';
import { testPictures } from './pictures.mjs';
import { testPlaces } from './places.mjs';
import { Program } from './program.mjs';
import { testWalk } from './walk.mjs';

function testIn(name, ratio, tests) {
  describe(`${name} at ratio ${ratio}`, { concurrency: 1 }, () => {
    const program = new Program();
    before(async () => {
      program.engine = await start(name, ratio);
    });
    after(() => program.engine?.close());
    tests(program);
  });
}

// Two at a time: an engine waits for its own frames most of the time.
describe('the page', { concurrency: 2 }, () => {
  for (const name of kEngines) {
    const limits = limitsOf(name);
    const [first, ...others] = limits.ratios;
    const changing = limits.changesRatio ? limits.ratios : [first];
    testIn(name, first, (program) => {
      testCases(program, limits);
      testHands(program, limits);
      testAccess(program);
      testPictures(program, changing);
      testLayout(program, changing);
      testPlaces(program, limits);
      testWalk(program);
    });
    for (const ratio of limits.changesRatio ? [] : others) {
      testIn(name, ratio, (program) => {
        testPictures(program, [ratio]);
        testLayout(program, [ratio]);
      });
    }
  }
});
