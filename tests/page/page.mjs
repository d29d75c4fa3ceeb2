// The page as learners have it, in an engine. That is started once, and once more for each ratio
// that it can't change to.
import { after, before, describe } from 'node:test';

import { testAccess } from './access.mjs';
import { testCases } from './cases.mjs';
import { testHands } from './hands.mjs';
import { testLayout } from './layout.mjs';
import { testPictures } from './pictures.mjs';
import { testPlaces } from './places.mjs';
import { Program } from '../../browsers/program.mjs';
import { testWalk } from './walk.mjs';

export function testPage(Engine) {
  const { limits } = Engine;
  const starts = limits.changesRatio ? [limits.ratios] : limits.ratios.map((ratio) => [ratio]);
  for (const ratios of starts) {
    describe(`${Engine.name} at ratio ${ratios[0]}`, () => {
      const program = new Program();
      before(async () => { program.engine = await new Engine().start(ratios[0]); });
      after(() => program.engine?.close());
      if (ratios === starts[0]) {
        testCases(program, limits);
        testHands(program, limits);
        testAccess(program, limits);
        testPlaces(program, limits);
        testWalk(program);
      }
      testPictures(program, ratios);
      testLayout(program, ratios);
    });
  }
}
