import { WebKit } from '../../browsers/webkit.mjs';
import { testPage } from './page.mjs';

testPage(WebKit);
