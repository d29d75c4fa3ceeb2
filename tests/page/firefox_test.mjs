import { Firefox } from '../../browsers/bidi.mjs';
import { testPage } from './page.mjs';

testPage(Firefox);
