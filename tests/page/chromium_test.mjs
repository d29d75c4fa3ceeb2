import { Chromium } from '../../browsers/bidi.mjs';
import { testPage } from './page.mjs';

testPage(Chromium);
