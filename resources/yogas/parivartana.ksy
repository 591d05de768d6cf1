<?xml version="1.0" encoding="UTF-8"?>
<ksy>
  <ver>1</ver>
  <nm>Exchanges of lords</nm>
  <au>Kestrav</au>
  <intro>The lords of two houses stand in each other's house. Sixty-six exchanges are possible: 28 maha, 8 khala and 30 dainya.</intro>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 1 and 2</tl>
    <rl>Parivartana,,maha,1,2</rl>
    <in>Lords of the 1st and 2nd exchange houses: body and self, means and family support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 1 and 4</tl>
    <rl>Parivartana,,maha,1,4</rl>
    <in>Lords of the 1st and 4th exchange houses: body and self, home and mother support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 1 and 5</tl>
    <rl>Parivartana,,maha,1,5</rl>
    <in>Lords of the 1st and 5th exchange houses: body and self, mind and children support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 1 and 7</tl>
    <rl>Parivartana,,maha,1,7</rl>
    <in>Lords of the 1st and 7th exchange houses: body and self, marriage and partners support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 1 and 9</tl>
    <rl>Parivartana,,maha,1,9</rl>
    <in>Lords of the 1st and 9th exchange houses: body and self, fortune and faith support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 1 and 10</tl>
    <rl>Parivartana,,maha,1,10</rl>
    <in>Lords of the 1st and 10th exchange houses: body and self, work and standing support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 1 and 11</tl>
    <rl>Parivartana,,maha,1,11</rl>
    <in>Lords of the 1st and 11th exchange houses: body and self, gains and friends support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 2 and 4</tl>
    <rl>Parivartana,,maha,2,4</rl>
    <in>Lords of the 2nd and 4th exchange houses: means and family, home and mother support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 2 and 5</tl>
    <rl>Parivartana,,maha,2,5</rl>
    <in>Lords of the 2nd and 5th exchange houses: means and family, mind and children support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 2 and 7</tl>
    <rl>Parivartana,,maha,2,7</rl>
    <in>Lords of the 2nd and 7th exchange houses: means and family, marriage and partners support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 2 and 9</tl>
    <rl>Parivartana,,maha,2,9</rl>
    <in>Lords of the 2nd and 9th exchange houses: means and family, fortune and faith support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 2 and 10</tl>
    <rl>Parivartana,,maha,2,10</rl>
    <in>Lords of the 2nd and 10th exchange houses: means and family, work and standing support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 2 and 11</tl>
    <rl>Parivartana,,maha,2,11</rl>
    <in>Lords of the 2nd and 11th exchange houses: means and family, gains and friends support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 4 and 5</tl>
    <rl>Parivartana,,maha,4,5</rl>
    <in>Lords of the 4th and 5th exchange houses: home and mother, mind and children support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 4 and 7</tl>
    <rl>Parivartana,,maha,4,7</rl>
    <in>Lords of the 4th and 7th exchange houses: home and mother, marriage and partners support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 4 and 9</tl>
    <rl>Parivartana,,maha,4,9</rl>
    <in>Lords of the 4th and 9th exchange houses: home and mother, fortune and faith support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 4 and 10</tl>
    <rl>Parivartana,,maha,4,10</rl>
    <in>Lords of the 4th and 10th exchange houses: home and mother, work and standing support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 4 and 11</tl>
    <rl>Parivartana,,maha,4,11</rl>
    <in>Lords of the 4th and 11th exchange houses: home and mother, gains and friends support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 5 and 7</tl>
    <rl>Parivartana,,maha,5,7</rl>
    <in>Lords of the 5th and 7th exchange houses: mind and children, marriage and partners support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 5 and 9</tl>
    <rl>Parivartana,,maha,5,9</rl>
    <in>Lords of the 5th and 9th exchange houses: mind and children, fortune and faith support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 5 and 10</tl>
    <rl>Parivartana,,maha,5,10</rl>
    <in>Lords of the 5th and 10th exchange houses: mind and children, work and standing support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 5 and 11</tl>
    <rl>Parivartana,,maha,5,11</rl>
    <in>Lords of the 5th and 11th exchange houses: mind and children, gains and friends support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 7 and 9</tl>
    <rl>Parivartana,,maha,7,9</rl>
    <in>Lords of the 7th and 9th exchange houses: marriage and partners, fortune and faith support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 7 and 10</tl>
    <rl>Parivartana,,maha,7,10</rl>
    <in>Lords of the 7th and 10th exchange houses: marriage and partners, work and standing support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 7 and 11</tl>
    <rl>Parivartana,,maha,7,11</rl>
    <in>Lords of the 7th and 11th exchange houses: marriage and partners, gains and friends support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 9 and 10</tl>
    <rl>Parivartana,,maha,9,10</rl>
    <in>Lords of the 9th and 10th exchange houses: fortune and faith, work and standing support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 9 and 11</tl>
    <rl>Parivartana,,maha,9,11</rl>
    <in>Lords of the 9th and 11th exchange houses: fortune and faith, gains and friends support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Maha Parivartana of 10 and 11</tl>
    <rl>Parivartana,,maha,10,11</rl>
    <in>Lords of the 10th and 11th exchange houses: work and standing, gains and friends support each other and bring comfort and position.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Maha parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Khala Parivartana of 1 and 3</tl>
    <rl>Parivartana,,khala,1,3</rl>
    <in>Lords of the 1st and 3rd exchange houses: own daring decides over body and self; pride and gentleness, failure and success by turns.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Khala parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Khala Parivartana of 2 and 3</tl>
    <rl>Parivartana,,khala,2,3</rl>
    <in>Lords of the 2nd and 3rd exchange houses: own daring decides over means and family; pride and gentleness, failure and success by turns.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Khala parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Khala Parivartana of 3 and 4</tl>
    <rl>Parivartana,,khala,3,4</rl>
    <in>Lords of the 3rd and 4th exchange houses: own daring decides over home and mother; pride and gentleness, failure and success by turns.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Khala parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Khala Parivartana of 3 and 5</tl>
    <rl>Parivartana,,khala,3,5</rl>
    <in>Lords of the 3rd and 5th exchange houses: own daring decides over mind and children; pride and gentleness, failure and success by turns.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Khala parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Khala Parivartana of 3 and 7</tl>
    <rl>Parivartana,,khala,3,7</rl>
    <in>Lords of the 3rd and 7th exchange houses: own daring decides over marriage and partners; pride and gentleness, failure and success by turns.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Khala parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Khala Parivartana of 3 and 9</tl>
    <rl>Parivartana,,khala,3,9</rl>
    <in>Lords of the 3rd and 9th exchange houses: own daring decides over fortune and faith; pride and gentleness, failure and success by turns.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Khala parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Khala Parivartana of 3 and 10</tl>
    <rl>Parivartana,,khala,3,10</rl>
    <in>Lords of the 3rd and 10th exchange houses: own daring decides over work and standing; pride and gentleness, failure and success by turns.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Khala parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Khala Parivartana of 3 and 11</tl>
    <rl>Parivartana,,khala,3,11</rl>
    <in>Lords of the 3rd and 11th exchange houses: own daring decides over gains and friends; pride and gentleness, failure and success by turns.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Khala parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 1 and 6</tl>
    <rl>Parivartana,,dainya,1,6</rl>
    <in>Lords of the 1st and 6th exchange houses: body and self suffer from rivals, debts and illness; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 1 and 8</tl>
    <rl>Parivartana,,dainya,1,8</rl>
    <in>Lords of the 1st and 8th exchange houses: body and self suffer from crises and hidden things; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 1 and 12</tl>
    <rl>Parivartana,,dainya,1,12</rl>
    <in>Lords of the 1st and 12th exchange houses: body and self suffer from spending and far places; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 2 and 6</tl>
    <rl>Parivartana,,dainya,2,6</rl>
    <in>Lords of the 2nd and 6th exchange houses: means and family suffer from rivals, debts and illness; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 2 and 8</tl>
    <rl>Parivartana,,dainya,2,8</rl>
    <in>Lords of the 2nd and 8th exchange houses: means and family suffer from crises and hidden things; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 2 and 12</tl>
    <rl>Parivartana,,dainya,2,12</rl>
    <in>Lords of the 2nd and 12th exchange houses: means and family suffer from spending and far places; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 3 and 6</tl>
    <rl>Parivartana,,dainya,3,6</rl>
    <in>Lords of the 3rd and 6th exchange houses: courage and siblings suffer from rivals, debts and illness; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 3 and 8</tl>
    <rl>Parivartana,,dainya,3,8</rl>
    <in>Lords of the 3rd and 8th exchange houses: courage and siblings suffer from crises and hidden things; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 3 and 12</tl>
    <rl>Parivartana,,dainya,3,12</rl>
    <in>Lords of the 3rd and 12th exchange houses: courage and siblings suffer from spending and far places; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 4 and 6</tl>
    <rl>Parivartana,,dainya,4,6</rl>
    <in>Lords of the 4th and 6th exchange houses: home and mother suffer from rivals, debts and illness; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 4 and 8</tl>
    <rl>Parivartana,,dainya,4,8</rl>
    <in>Lords of the 4th and 8th exchange houses: home and mother suffer from crises and hidden things; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 4 and 12</tl>
    <rl>Parivartana,,dainya,4,12</rl>
    <in>Lords of the 4th and 12th exchange houses: home and mother suffer from spending and far places; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 5 and 6</tl>
    <rl>Parivartana,,dainya,5,6</rl>
    <in>Lords of the 5th and 6th exchange houses: mind and children suffer from rivals, debts and illness; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 5 and 8</tl>
    <rl>Parivartana,,dainya,5,8</rl>
    <in>Lords of the 5th and 8th exchange houses: mind and children suffer from crises and hidden things; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 5 and 12</tl>
    <rl>Parivartana,,dainya,5,12</rl>
    <in>Lords of the 5th and 12th exchange houses: mind and children suffer from spending and far places; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 6 and 7</tl>
    <rl>Parivartana,,dainya,6,7</rl>
    <in>Lords of the 6th and 7th exchange houses: marriage and partners suffer from rivals, debts and illness; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 6 and 8</tl>
    <rl>Parivartana,,dainya,6,8</rl>
    <in>Lords of the 6th and 8th exchange houses: trouble with rivals, debts and illness and with crises and hidden things feed on each other, and may wear each other out.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 6 and 9</tl>
    <rl>Parivartana,,dainya,6,9</rl>
    <in>Lords of the 6th and 9th exchange houses: fortune and faith suffer from rivals, debts and illness; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 6 and 10</tl>
    <rl>Parivartana,,dainya,6,10</rl>
    <in>Lords of the 6th and 10th exchange houses: work and standing suffer from rivals, debts and illness; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 6 and 11</tl>
    <rl>Parivartana,,dainya,6,11</rl>
    <in>Lords of the 6th and 11th exchange houses: gains and friends suffer from rivals, debts and illness; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 6 and 12</tl>
    <rl>Parivartana,,dainya,6,12</rl>
    <in>Lords of the 6th and 12th exchange houses: trouble with rivals, debts and illness and with spending and far places feed on each other, and may wear each other out.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 7 and 8</tl>
    <rl>Parivartana,,dainya,7,8</rl>
    <in>Lords of the 7th and 8th exchange houses: marriage and partners suffer from crises and hidden things; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 7 and 12</tl>
    <rl>Parivartana,,dainya,7,12</rl>
    <in>Lords of the 7th and 12th exchange houses: marriage and partners suffer from spending and far places; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 8 and 9</tl>
    <rl>Parivartana,,dainya,8,9</rl>
    <in>Lords of the 8th and 9th exchange houses: fortune and faith suffer from crises and hidden things; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 8 and 10</tl>
    <rl>Parivartana,,dainya,8,10</rl>
    <in>Lords of the 8th and 10th exchange houses: work and standing suffer from crises and hidden things; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 8 and 11</tl>
    <rl>Parivartana,,dainya,8,11</rl>
    <in>Lords of the 8th and 11th exchange houses: gains and friends suffer from crises and hidden things; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 8 and 12</tl>
    <rl>Parivartana,,dainya,8,12</rl>
    <in>Lords of the 8th and 12th exchange houses: trouble with crises and hidden things and with spending and far places feed on each other, and may wear each other out.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 9 and 12</tl>
    <rl>Parivartana,,dainya,9,12</rl>
    <in>Lords of the 9th and 12th exchange houses: fortune and faith suffer from spending and far places; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 10 and 12</tl>
    <rl>Parivartana,,dainya,10,12</rl>
    <in>Lords of the 10th and 12th exchange houses: work and standing suffer from spending and far places; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dainya Parivartana of 11 and 12</tl>
    <rl>Parivartana,,dainya,11,12</rl>
    <in>Lords of the 11th and 12th exchange houses: gains and friends suffer from spending and far places; what is won needs to be defended.</in>
    <cm>Phaladeepika, chapter 6 (yogas of exchange).</cm>
    <vs>Rasi</vs>
    <ch>Dainya parivartana</ch>
  </yg>
</ksy>
